#include "screenshots/DesktopScreenshotOrganizer.h"

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "settings/CocoaError.h"
#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace tembra;

namespace {

const QString shotName = QStringLiteral("Screenshot 2024-05-17 at 09.41.00.png");

class DesktopOrganizer : public testing::Test {
protected:
    DesktopOrganizer() { EXPECT_TRUE(QDir(m_root.path()).mkpath(m_desktop) && QDir().mkdir(m_shots)); }

    [[nodiscard]] DesktopScreenshotOrganizer::Report move() const { return move(m_shots); }
    [[nodiscard]] DesktopScreenshotOrganizer::Report move(const QString &to) const {
        const auto report = DesktopScreenshotOrganizer::moveScreenshots(m_desktop, to, m_detector);
        EXPECT_TRUE(report);
        return report.value_or(DesktopScreenshotOrganizer::Report{-1, -1});
    }
    [[nodiscard]] QString onDesktop(const QString &name) const { return m_desktop + u'/' + name; }
    [[nodiscard]] QString inShots(const QString &name) const { return m_shots + u'/' + name; }
    static QByteArray readFile(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("unreadable");
    }
    static QStringList names(const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

    QTemporaryDir m_root;
    const QString m_desktop = m_root.filePath(QStringLiteral("Desktop"));
    const QString m_shots = m_root.filePath(QStringLiteral("Shots"));
    const LinuxFileFactsReader m_reader;
    const LinuxFolderFiles m_files{m_reader};
    const LinuxCaptureMarkers m_markers;
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};
};

} // namespace

TEST_F(DesktopOrganizer, screenshotsAreMovedAndEverythingElseStays) {
    const QStringList shots{shotName, QStringLiteral("Screenshot from 2024-05-17 09-41-00.JPG"),
                            QStringLiteral("marked.png")};
    const QStringList others{QStringLiteral("Screen Recording 2024-05-17 at 09.41.00.mov"),
                             QStringLiteral("Screenshot 2024-05-17 at 09.41.00.txt"),
                             QStringLiteral("Screenshot from 2024-05-17 09-41-00.webm"),
                             QStringLiteral("holiday.png"), QStringLiteral("denied.png")};
    for (const QString &name : shots + others)
        writeFile(onDesktop(name), name.toUtf8());
    const bool hasMarker = m_markers.setMarker(onDesktop(QStringLiteral("marked.png")), true).has_value();
    const QString folder = QStringLiteral("Screenshot 2024-05-17 at 10.00.00.png");
    const QString link = QStringLiteral("Screenshot 2024-05-17 at 11.00.00.png");
    const QString pipe = QStringLiteral("Screenshot 2024-05-17 at 12.00.00.png");
    ASSERT_TRUE(QDir().mkdir(onDesktop(folder)) && QFile::link(onDesktop(shotName), onDesktop(link)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(onDesktop(pipe)).constData(), 0600), 0);
    writeFile(onDesktop(folder) + u'/' + shotName);

    EXPECT_EQ(move(), (DesktopScreenshotOrganizer::Report{hasMarker ? 3 : 2, 0}));
    QStringList stay = others + QStringList{folder, link, pipe};
    QStringList moved = shots;
    if (!hasMarker)
        stay.append(moved.takeLast());
    stay.sort();
    moved.sort();
    EXPECT_EQ(names(m_desktop), stay);
    EXPECT_EQ(names(m_shots), moved);
    EXPECT_EQ(readFile(inShots(shotName)), shotName.toUtf8());
}

TEST_F(DesktopOrganizer, aTakenNameGetsTheFirstFreeCounter) {
    const QString second = QStringLiteral("Screenshot 2024-05-17 at 09.41.00 (2).png");
    const QString third = QStringLiteral("Screenshot 2024-05-17 at 09.41.00 (3).png");
    writeFile(onDesktop(shotName), "new");
    writeFile(inShots(shotName), "first");
    // A name is also taken by a link that leads nowhere.
    ASSERT_TRUE(QFile::link(inShots(QStringLiteral("gone")), inShots(second)));
    EXPECT_EQ(move(), (DesktopScreenshotOrganizer::Report{1, 0}));
    EXPECT_EQ(readFile(inShots(shotName)), "first");
    EXPECT_TRUE(QFileInfo(inShots(second)).isSymLink());
    EXPECT_EQ(readFile(inShots(third)), "new");
    EXPECT_EQ(names(m_desktop), QStringList());
}

TEST_F(DesktopOrganizer, failuresAreCountedAndLeaveTheFilesWhereTheyAre) {
    writeFile(onDesktop(shotName));
    writeFile(onDesktop(QStringLiteral("Screenshot 2024-05-17 at 09.42.00.png")));
    const QStringList all = names(m_desktop);
    const DesktopScreenshotOrganizer::Report failed{0, 2};
    EXPECT_EQ(move(m_root.filePath(QStringLiteral("gone"))), failed);
    EXPECT_EQ(move(onDesktop(shotName)), failed);
    EXPECT_EQ(names(m_desktop), all);
    EXPECT_FALSE(DesktopScreenshotOrganizer::moveScreenshots(m_root.filePath(QStringLiteral("gone")), m_shots,
                                                             m_detector));
}

TEST_F(DesktopOrganizer, aFolderIsNotMovedIntoItself) {
    writeFile(onDesktop(shotName));
    ASSERT_TRUE(QFile::link(m_desktop, m_root.filePath(QStringLiteral("link"))));
    for (const QString &same : {m_desktop, m_desktop + u'/', m_root.filePath(QStringLiteral("link"))})
        EXPECT_EQ(move(same), DesktopScreenshotOrganizer::Report()) << qPrintable(same);
    EXPECT_EQ(names(m_desktop), QStringList{shotName});
}

TEST_F(DesktopOrganizer, onAnotherVolumeAScreenshotIsStillOneOfItsDay) {
    ScratchMount disk(QStringLiteral("ext4"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const QString marked = QStringLiteral("marked.png");
    writeFile(onDesktop(marked), "content");
    const QDateTime taken(QDate(2024, 5, 17), QTime(9, 41, 0, 250), Qt::UTC);
    {
        QFile file(onDesktop(marked));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(taken, QFileDevice::FileModificationTime));
    }
    if (!m_markers.setMarker(onDesktop(marked), true))
        GTEST_SKIP() << "no extended attributes here";
    EXPECT_EQ(move(disk.path()), (DesktopScreenshotOrganizer::Report{1, 0}));
    const QString moved = disk.path() + u'/' + marked;
    EXPECT_EQ(readFile(moved), "content");
    EXPECT_TRUE(m_detector.isCapture(moved));
    EXPECT_EQ(m_reader.facts(moved)->createdAt,
              Instant(std::chrono::milliseconds(taken.toMSecsSinceEpoch())));
}

TEST_F(DesktopOrganizer, aFolderIsMadeUnlessSomethingElseIsInItsPlace) {
    writeFile(m_root.filePath(QStringLiteral("file")));
    ASSERT_TRUE(QFile::link(m_shots, m_root.filePath(QStringLiteral("link"))));
    ASSERT_TRUE(
        QFile::link(m_root.filePath(QStringLiteral("gone")), m_root.filePath(QStringLiteral("dangling"))));
    struct Case {
        const char *name;
        int code;
    };
    for (const Case &c :
         {Case{"Shots", 0}, Case{"new", 0}, Case{"new/deep/er", 0},
          Case{"file", CocoaError::fileWriteFileExists}, Case{"link", CocoaError::fileWriteFileExists},
          Case{"dangling", CocoaError::fileWriteFileExists},
          Case{"file/below", CocoaError::fileWriteNoPermission}}) {
        const QString folder = m_root.filePath(QString::fromUtf8(c.name));
        const auto made = DesktopScreenshotOrganizer::createFolder(folder);
        EXPECT_EQ(made ? 0 : made.error().code, c.code) << c.name;
        EXPECT_TRUE(!made || QFileInfo(folder).isDir()) << c.name;
    }
}
