#include "platform/linux/ThumbnailCacheFolder.h"
#include "support/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QImage filled(QSize size, QColor color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

bool shows(const QImage &image, QColor color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

// A red file of which programs keep thumbnails in several sizes, some under the name that Qt gives to it.
class ThumbnailCacheTest : public testing::Test {
protected:
    ThumbnailCacheTest() {
        EXPECT_TRUE(filled({1200, 800}, Qt::red).save(m_file));
        for (const char *folder : {"normal", "x-large", "xx-large", "fail/some-program"})
            keep(folder, ThumbnailCacheFolder::uri(m_file));
        for (const char *folder : {"normal", "large", "fail/other-program"})
            keep(folder, QUrl::fromLocalFile(m_file).toEncoded());
        keep("normal", ThumbnailCacheFolder::uri(m_other));
    }

    void keep(const char *folder, const QByteArray &uri) const {
        const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
        const QString path = m_cache + u'/' + QLatin1StringView(folder) + u'/' + QLatin1StringView(name);
        EXPECT_TRUE(QDir().mkpath(m_cache + u'/' + QLatin1StringView(folder)));
        EXPECT_TRUE(filled({120, 80}, Qt::red).save(path + QStringLiteral(".png")));
    }
    [[nodiscard]] QStringList kept() const {
        QStringList files;
        QDirIterator all(m_cache, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            files.append(all.next());
        return files;
    }
    // Takes away the thumbnail of the other file, which is to be as it was.
    void removeOthers() const {
        const QByteArray uri = ThumbnailCacheFolder::uri(m_other);
        const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
        const QString path = m_cache + QStringLiteral("/normal/") + QLatin1StringView(name);
        EXPECT_TRUE(shows(QImage(path + QStringLiteral(".png")), Qt::red));
        EXPECT_TRUE(QFile::remove(path + QStringLiteral(".png")));
    }

    QTemporaryDir m_folder;
    const QString m_file = m_folder.filePath(QStringLiteral("Shot; [1] ä.png"));
    const QString m_other = m_folder.filePath(QStringLiteral("other.png"));
    const QString m_cache = m_folder.filePath(QStringLiteral("cache"));
    const ThumbnailCacheFolder m_thumbnails{m_cache};
};

} // namespace

TEST_F(ThumbnailCacheTest, renewedThumbnailsShowNothingOfTheOldFile) {
    QImage picture = filled({1500, 900}, Qt::green);
    picture.setText(QStringLiteral("Title"), QStringLiteral("red"));
    ASSERT_TRUE(picture.save(m_file));
    // As it was with the old content: the date alone gives nothing away.
    setModified(m_file, Instant(std::chrono::seconds(1'600'000'000)));
    m_thumbnails.renew(m_file, picture);
    removeOthers();

    EXPECT_EQ(kept().size(), 5);
    QList<int> widths;
    for (const QString &path : kept()) {
        const QImage thumbnail(path);
        EXPECT_FALSE(shows(thumbnail, Qt::red));
        EXPECT_TRUE(shows(thumbnail, Qt::green));
        EXPECT_EQ(thumbnail.text(QStringLiteral("Title")), QString());
        EXPECT_EQ(thumbnail.text(QStringLiteral("Thumb::MTime")), QStringLiteral("1600000000"));
        EXPECT_EQ(thumbnail.text(QStringLiteral("Thumb::Size")), QString::number(QFileInfo(m_file).size()));
        const QByteArray uri = thumbnail.text(QStringLiteral("Thumb::URI")).toLatin1();
        EXPECT_EQ(QUrl::fromEncoded(uri).toLocalFile(), m_file);
        EXPECT_TRUE(
            path.contains(QLatin1StringView(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex())));
        EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        widths.append(thumbnail.width());
    }
    std::ranges::sort(widths);
    EXPECT_EQ(widths, (QList<int>{128, 128, 256, 512, 1024}));
    const auto found = m_thumbnails.find(*ThumbnailCacheFolder::sourceOf(m_file), 1000);
    EXPECT_TRUE(found && shows(*found, Qt::green));
}

TEST_F(ThumbnailCacheTest, whatCannotBeRenewedGoes) {
    const std::function<void()> actions[] = {
        [this] { m_thumbnails.forget(m_file); },
        [this] { m_thumbnails.renew(m_file, QImage()); },
        [this] {
            QFile::remove(m_file);
            m_thumbnails.renew(m_file, filled({10, 10}, Qt::green));
        },
    };
    for (const auto &action : actions) {
        keep("normal", ThumbnailCacheFolder::uri(m_file));
        keep("normal", ThumbnailCacheFolder::uri(m_other));
        action();
        removeOthers();
        EXPECT_EQ(kept(), QStringList());
    }
}

TEST_F(ThumbnailCacheTest, nothingIsMadeThatNobodyKept) {
    m_thumbnails.forget(m_file);
    m_thumbnails.renew(m_file, filled({1200, 800}, Qt::green));
    removeOthers();
    EXPECT_EQ(kept(), QStringList());
}
