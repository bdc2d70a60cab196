#include "platform/linux/desktop/DesktopApplications.h"

#include "support/EventLoop.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Programs installed for this test alone, which write down what they are started with.
class DesktopApplicationsTest : public testing::Test {
protected:
    DesktopApplicationsTest() {
        QFile::remove(started());
        install("paint", "Paint", "image/png;image/jpeg;");
        install("album", "Album", "image/png;");
        install("hidden", "Hidden", "image/png;", "NoDisplay=true\n");
        install("player", "Player", "video/mp4;");
        // As update-desktop-database writes it.
        writeFile(
            data() + QStringLiteral("/applications/mimeinfo.cache"),
            "[MIME Cache]\n"
            "image/png=tembra-test-paint.desktop;tembra-test-album.desktop;tembra-test-hidden.desktop;\n"
            "image/jpeg=tembra-test-paint.desktop;\n"
            "video/mp4=tembra-test-player.desktop;\n");
        writeFile(data() + QStringLiteral("/applications/mimeapps.list"),
                  "[Default Applications]\nimage/png=tembra-test-paint.desktop;\n");
    }

    static QString data() { return qEnvironmentVariable("XDG_DATA_HOME"); }
    static QString started() { return data() + QStringLiteral("/started"); }
    static void install(const QByteArray &id, const QByteArray &name, const QByteArray &types,
                        const QByteArray &more = {}) {
        QDir().mkpath(data() + QStringLiteral("/applications"));
        const QByteArray command =
            "sh -c 'printf \"%%s\\\\n\" " + id + " \"$@\" >>" + started().toUtf8() + "' sh %F";
        writeFile(data() + QStringLiteral("/applications/tembra-test-%1.desktop").arg(QString::fromUtf8(id)),
                  "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + command +
                      "\nMimeType=" + types + "\nIcon=tembra-none\n" + more);
    }
    [[nodiscard]] QString file(const char *name, const QByteArray &content) const {
        return writeFile(m_folder.filePath(QString::fromUtf8(name)), content);
    }
    // The names of the test's own programs.
    static QStringList names(const QStringList &paths) {
        QStringList names;
        for (const Workspace::Application &application : DesktopApplications::applicationsFor(paths)) {
            if (application.identifier.startsWith(u"tembra-test-"))
                names += application.name + (application.isDefault ? QStringLiteral("*") : QString());
        }
        return names;
    }

    const QTemporaryDir m_folder;
    const QString m_png = file("a b.png", pictureBytes("png"));
    const QString m_jpeg = file("c.jpg", pictureBytes("jpg"));
};

} // namespace

TEST_F(DesktopApplicationsTest, offersThoseThatOpenEveryFileTheDefaultFirst) {
    EXPECT_EQ(names({m_png}), (QStringList{QStringLiteral("Paint*"), QStringLiteral("Album")}));
    EXPECT_EQ(names({m_png, m_jpeg}), (QStringList{QStringLiteral("Paint*")}));
    EXPECT_EQ(names({m_png, file("d.xyz123", "\x01\x02")}), QStringList());
    EXPECT_EQ(names({m_folder.filePath(QStringLiteral("gone.png"))}), QStringList());
    EXPECT_EQ(names({}), QStringList());
}

TEST_F(DesktopApplicationsTest, startsTheChosenOneOrTheDefaultWithAllFiles) {
    const auto lines = [] {
        QFile log(started());
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
    };
    ASSERT_TRUE(DesktopApplications::open({m_png, m_jpeg}, QStringLiteral("tembra-test-album.desktop")));
    const QString first = QStringLiteral("album\n%1\n%2\n").arg(m_png, m_jpeg);
    EXPECT_TRUE(eventually([&] { return lines() == first; })) << lines().toStdString();
    ASSERT_TRUE(DesktopApplications::open({m_png}, QString()));
    EXPECT_TRUE(eventually([&] { return lines() == first + QStringLiteral("paint\n%1\n").arg(m_png); }))
        << lines().toStdString();

    const auto unknown = DesktopApplications::open({m_png}, QStringLiteral("tembra-test-none.desktop"));
    ASSERT_FALSE(unknown);
    EXPECT_EQ(unknown.error().message, QStringLiteral("No application opens “a b.png”."));
}
