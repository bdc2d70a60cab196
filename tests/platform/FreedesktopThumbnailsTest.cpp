#include "platform/linux/FreedesktopThumbnails.h"

#include "base/QtScheduler.h"

#include <QCryptographicHash>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using Outcome = Result<Thumbnails::Thumbnail>;

QImage halves(QSize size, QColor left, QColor right, QImage::Format format = QImage::Format_RGB32) {
    QImage image(size, format);
    image.fill(left);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(size.width() / 2, 0, size.width(), size.height()), right);
    return image;
}

bool near(QColor a, QColor b) {
    return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12 &&
           std::abs(a.blue() - b.blue()) < 12;
}

class FreedesktopThumbnailsTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path(name);
    }

    QString save(const QString &name, const QImage &image) const {
        EXPECT_TRUE(image.save(path(name)));
        return path(name);
    }

    Outcome ask(const QString &file, double side = 64, double scale = 1) {
        std::optional<Outcome> outcome;
        QEventLoop loop;
        const auto request = m_thumbnails->request(file, side, scale, [&](Outcome result) {
            outcome = std::move(result);
            loop.quit();
        });
        const WorkItem deadline = m_scheduler.schedule(30s, [&] { loop.quit(); });
        loop.exec();
        EXPECT_TRUE(outcome) << "no answer for " << qPrintable(file);
        return outcome ? *outcome : failure({});
    }

    // Ends the threads, so that everything they were to write is written.
    void finish() { m_thumbnails.reset(); }
    void restart() { m_thumbnails.emplace(m_scheduler, m_locations); }

    QString cached(const QString &file, const char *size) const {
        const QByteArray name =
            QCryptographicHash::hash(ThumbnailCacheFolder::uri(file), QCryptographicHash::Md5).toHex();
        return m_locations.cache + u'/' + QLatin1StringView(size) + u'/' + QLatin1StringView(name) +
               QStringLiteral(".png");
    }

    QTemporaryDir m_folder;
    QtScheduler m_scheduler;
    FreedesktopThumbnails::Locations m_locations{m_folder.filePath(QStringLiteral("cache")),
                                                 {m_folder.filePath(QStringLiteral("thumbnailers"))}};
    std::optional<FreedesktopThumbnails> m_thumbnails{std::in_place, m_scheduler, m_locations};
};

} // namespace

TEST_F(FreedesktopThumbnailsTest, picturesOfEveryKindAreReducedToTheSizeAskedFor) {
    const QImage wide = halves({1600, 800}, Qt::red, Qt::blue);
    const QImage deep = halves({1600, 800}, Qt::red, Qt::blue, QImage::Format_RGBX64);
    const QImage clear = halves({1600, 800}, Qt::red, Qt::transparent, QImage::Format_ARGB32);
    const struct {
        QString file;
        double scale;
        QSize size;
        QColor right;
    } cases[] = {
        {save(QStringLiteral("a.png"), wide), 1, {64, 32}, Qt::blue},
        {save(QStringLiteral("a.png"), wide), 2, {128, 64}, Qt::blue},
        {save(QStringLiteral("a.png"), wide), 1.25, {80, 40}, Qt::blue},
        {save(QStringLiteral("sixteen.png"), deep), 1, {64, 32}, Qt::blue},
        {save(QStringLiteral("a.jpg"), wide), 1, {64, 32}, Qt::blue},
        {save(QStringLiteral("a.tiff"), wide), 1, {64, 32}, Qt::blue},
        {save(QStringLiteral("jpeg named.png"), wide), 1, {64, 32}, Qt::blue},
        {save(QStringLiteral("clear.png"), clear), 1, {64, 32}, Qt::transparent},
        {save(QStringLiteral("hairline.png"), halves({4000, 1}, Qt::red, Qt::blue)), 1, {64, 1}, Qt::blue},
        {save(QStringLiteral("small.png"), halves({20, 10}, Qt::red, Qt::blue)), 1, {20, 10}, Qt::blue},
    };
    for (const auto &test : cases) {
        const Outcome outcome = ask(test.file, 64, test.scale);
        ASSERT_TRUE(outcome) << qPrintable(test.file);
        const QImage &image = outcome->image;
        EXPECT_TRUE(outcome->isThumbnail);
        EXPECT_EQ(image.size(), test.size) << qPrintable(test.file);
        EXPECT_DOUBLE_EQ(image.devicePixelRatio(), test.scale);
        EXPECT_TRUE(near(image.pixelColor(2, image.height() / 2), Qt::red)) << qPrintable(test.file);
        const QColor right = image.pixelColor(image.width() - 3, image.height() / 2);
        EXPECT_EQ(right.alpha(), test.right.alpha()) << qPrintable(test.file);
        EXPECT_TRUE(right.alpha() == 0 || near(right, test.right)) << qPrintable(test.file);
    }
}

TEST_F(FreedesktopThumbnailsTest, fineDetailIsAveragedWhateverTheFormat) {
    QImage stripes(640, 640, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixel(x, y, x % 5 == 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    }
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
                              QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        for (const char *type : {"png", "tiff"}) {
            const QString file = QStringLiteral("%1.%2").arg(format).arg(QLatin1StringView(type));
            const Outcome outcome = ask(save(file, stripes.convertToFormat(format)));
            ASSERT_TRUE(outcome) << qPrintable(file);
            EXPECT_TRUE(near(outcome->image.pixelColor(20, 30), QColor(51, 51, 51))) << qPrintable(file);
        }
    }
}

TEST_F(FreedesktopThumbnailsTest, aTurnedPhotographIsUpright) {
    QImageWriter writer(path(QStringLiteral("turned.jpg")));
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(halves({1600, 800}, Qt::red, Qt::blue)));
    const Outcome outcome = ask(path(QStringLiteral("turned.jpg")));
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->image.size(), QSize(32, 64));
    EXPECT_TRUE(near(outcome->image.pixelColor(16, 2), Qt::red));
    EXPECT_TRUE(near(outcome->image.pixelColor(16, 61), Qt::blue));
}

TEST_F(FreedesktopThumbnailsTest, anAnimationShowsItsFirstPicture) {
    if (QStandardPaths::findExecutable(QStringLiteral("convert")).isEmpty())
        GTEST_SKIP() << "ImageMagick makes the animation";
    const QString file = path(QStringLiteral("moving.gif"));
    ASSERT_EQ(QProcess::execute(QStringLiteral("convert"),
                                {QStringLiteral("-size"), QStringLiteral("200x100"), QStringLiteral("xc:red"),
                                 QStringLiteral("xc:blue"), file}),
              0);
    const Outcome outcome = ask(file);
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->image.size(), QSize(64, 32));
    EXPECT_TRUE(near(outcome->image.pixelColor(32, 16), Qt::red));
}

TEST_F(FreedesktopThumbnailsTest, aHeicPictureIsShown) {
    if (QStandardPaths::findExecutable(QStringLiteral("heif-enc")).isEmpty())
        GTEST_SKIP() << "heif-enc makes the picture";
    const QString png = save(QStringLiteral("source.png"), halves({640, 320}, Qt::red, Qt::blue));
    const QString file = path(QStringLiteral("picture.heic"));
    if (QProcess::execute(QStringLiteral("heif-enc"), {png, QStringLiteral("-o"), file}) != 0)
        GTEST_SKIP() << "no HEVC encoder";
    const Outcome outcome = ask(file);
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->image.size(), QSize(64, 32));
    EXPECT_TRUE(near(outcome->image.pixelColor(3, 16), Qt::red));
}

TEST_F(FreedesktopThumbnailsTest, damagedFilesAreErrorsWithASentence) {
    QByteArray whole;
    {
        QFile file(save(QStringLiteral("whole.png"), halves({900, 900}, Qt::red, Qt::blue)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        whole = file.readAll();
    }
    const QString files[] = {
        write(QStringLiteral("empty.png"), {}),
        write(QStringLiteral("text.jpg"), "not a picture"),
        write(QStringLiteral("headonly.png"), whole.left(40)),
        write(QStringLiteral("too large.pgm"), "P5 60000 60000 255\n"),
        path(QStringLiteral("missing.png")),
    };
    for (const QString &file : files) {
        const Outcome outcome = ask(file);
        ASSERT_FALSE(outcome) << qPrintable(file);
        EXPECT_EQ(outcome.error().domain, QStringLiteral("Tembra.ScreenshotThumbnail"));
        EXPECT_FALSE(outcome.error().message.isEmpty());
    }
}

TEST_F(FreedesktopThumbnailsTest, whatIsNoPictureIsNoThumbnail) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(QStringLiteral("pipe.png"))).constData(), 0600), 0);
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("folder.png"))));
    for (const QString &file : {path(QStringLiteral("pipe.png")), path(QStringLiteral("folder.png")),
                                write(QStringLiteral("notes.txt"), "words")}) {
        const Outcome outcome = ask(file);
        ASSERT_TRUE(outcome) << qPrintable(file);
        EXPECT_FALSE(outcome->isThumbnail);
        EXPECT_TRUE(outcome->image.isNull());
    }
}

TEST_F(FreedesktopThumbnailsTest, whatIsDecodedIsSharedWithFileManagers) {
    const QString file =
        save(QStringLiteral("Größe 100%; a&b [1].png"), halves({900, 600}, Qt::red, Qt::blue));
    ASSERT_TRUE(ask(file));
    finish();
    const QString thumbnail = cached(file, "normal");
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(thumbnail).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    const QImage kept(thumbnail);
    EXPECT_EQ(kept.size(), QSize(128, 85));
    EXPECT_TRUE(kept.text(QStringLiteral("Thumb::URI"))
                    .endsWith(QStringLiteral("/Gr%C3%B6%C3%9Fe%20100%25%3B%20a&b%20%5B1%5D.png")));
    ASSERT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
    EXPECT_EQ(kept.text(QStringLiteral("Thumb::MTime")), QString::number(status.st_mtim.tv_sec));
    EXPECT_EQ(QDir(m_locations.cache + QStringLiteral("/normal")).entryList(QDir::Files).size(), 1)
        << "nothing half-written stays behind";
}

TEST_F(FreedesktopThumbnailsTest, aThumbnailIsTakenFromTheCacheOnlyForTheSameVersionOfTheFile) {
    const QString file = save(QStringLiteral("a.png"), halves({900, 600}, Qt::red, Qt::blue));
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
    const auto cacheGreen = [&](qint64 modifiedAt) {
        ThumbnailCacheFolder(m_locations.cache)
            .store({file, modifiedAt, status.st_size}, halves({256, 171}, Qt::green, Qt::green));
    };
    cacheGreen(status.st_mtim.tv_sec);
    EXPECT_TRUE(near(ask(file)->image.pixelColor(3, 3), Qt::green)) << "a larger size serves as well";
    cacheGreen(status.st_mtim.tv_sec - 1);
    EXPECT_TRUE(near(ask(file)->image.pixelColor(3, 3), Qt::red));
}

TEST_F(FreedesktopThumbnailsTest, thumbnailsOfThumbnailsAndOfSmallPicturesAreNotKept) {
    ASSERT_TRUE(QDir().mkpath(m_locations.cache + QStringLiteral("/normal")));
    const QString inside =
        save(QStringLiteral("cache/normal/some.png"), halves({300, 300}, Qt::red, Qt::blue));
    const QString small = save(QStringLiteral("small.png"), halves({100, 50}, Qt::red, Qt::blue));
    ASSERT_TRUE(ask(inside));
    ASSERT_TRUE(ask(small));
    finish();
    EXPECT_FALSE(QFile::exists(cached(inside, "normal")));
    EXPECT_FALSE(QFile::exists(cached(small, "normal")));
}

TEST_F(FreedesktopThumbnailsTest, aDroppedRequestIsNeverAnswered) {
    const QString file = save(QStringLiteral("a.png"), halves({900, 600}, Qt::red, Qt::blue));
    bool answered = false;
    {
        const auto dropped = m_thumbnails->request(file, 64, 1, [&](const Outcome &) { answered = true; });
    }
    EXPECT_TRUE(ask(file));
    EXPECT_FALSE(answered);

    // The one who is answered may drop the request there and then, and the service may go before the answer.
    QEventLoop loop;
    std::unique_ptr<Thumbnails::Request> own;
    own = m_thumbnails->request(file, 64, 1, [&](const Outcome &) {
        own.reset();
        loop.quit();
    });
    loop.exec();
    const auto late = m_thumbnails->request(file, 64, 1, [](const Outcome &) {});
    finish();
    QCoreApplication::processEvents();
}

TEST_F(FreedesktopThumbnailsTest, videosAreDrawnByTheInstalledProgram) {
    ASSERT_TRUE(QDir().mkpath(m_locations.thumbnailers.first()));
    write(QStringLiteral("frame.sh"), "#!/bin/sh\ncp \"$2\" \"$1\"\n");
    ASSERT_TRUE(QFile::setPermissions(path(QStringLiteral("frame.sh")), QFile::ReadOwner | QFile::ExeOwner));
    const QString frame = save(QStringLiteral("frame.png"), halves({320, 160}, Qt::red, Qt::blue));
    write(QStringLiteral("thumbnailers/a.thumbnailer"),
          "[Thumbnailer Entry]\nTryExec=/no/such/program\nExec=false %i\nMimeType=video/mp4;\n");
    write(QStringLiteral("thumbnailers/b.thumbnailer"),
          "[Thumbnailer Entry]\nExec=" + path(QStringLiteral("frame.sh")).toUtf8() + " %o " + frame.toUtf8() +
              "\nMimeType=video/x-matroska;video/mp4;\n");
    write(QStringLiteral("thumbnailers/c.thumbnailer"),
          "[Thumbnailer Entry]\nExec=false\nMimeType=video/webm;\n");
    const Outcome video = ask(write(QStringLiteral("it's a video.mp4"), "bytes"));
    ASSERT_TRUE(video);
    EXPECT_TRUE(video->isThumbnail);
    EXPECT_EQ(video->image.size(), QSize(64, 32));
    const Outcome failed = ask(write(QStringLiteral("broken.webm"), "bytes"));
    ASSERT_TRUE(failed);
    EXPECT_FALSE(failed->isThumbnail);
}

TEST(ThumbnailerPrograms, fieldCodesAreReplacedWithinTheirWords) {
    const QString exec = QStringLiteral("thumb -i %i --uri=%u -o \"%o\" -s %s 100%%");
    EXPECT_EQ(ThumbnailerPrograms::commandLine(exec, QStringLiteral("/a b/%s \"c\".mp4"),
                                               QStringLiteral("/o.png"), 128),
              (QStringList{QStringLiteral("thumb"), QStringLiteral("-i"), QStringLiteral("/a b/%s \"c\".mp4"),
                           QStringLiteral("--uri=file:///a%20b/%25s%20%22c%22.mp4"), QStringLiteral("-o"),
                           QStringLiteral("/o.png"), QStringLiteral("-s"), QStringLiteral("128"),
                           QStringLiteral("100%")}));
}

TEST(ThumbnailerPrograms, aProgramThatHangsIsEnded) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("slow.thumbnailer")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Thumbnailer Entry]\nExec=sleep 600\nMimeType=video/mp4;\n");
    file.close();
    const ThumbnailerPrograms programs({folder.path()});
    EXPECT_FALSE(
        programs.run(QStringLiteral("/x.mp4"), QStringLiteral("video/mp4"), 128, 60ms, [] { return false; }));
    EXPECT_FALSE(
        programs.run(QStringLiteral("/x.mp4"), QStringLiteral("video/mp4"), 128, 1h, [] { return true; }));
}
