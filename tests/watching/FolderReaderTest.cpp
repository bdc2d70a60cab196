#include "screenshots/FolderReader.h"

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "support/CountingFolderFiles.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/types.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

const QString firstName = QStringLiteral("Screenshot_20261121_101501.png");
const QString secondName = QStringLiteral("Screenshot_20261121_101502.png");
const QString recordingName = QStringLiteral("Screencast_20261121_101501.mp4");

class FolderReaderTest : public testing::Test {
protected:
    QString write(const QString &name, std::chrono::nanoseconds age = 1h,
                  const QByteArray &content = pictureBytes("png")) const {
        QString file = writeFile(path(name), content);
        setModified(file, now - age);
        return file;
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    FolderScanResult read() {
        return m_reader.readFolder({.folder = m_folder.path(),
                                    .includesSubfolders = includesSubfolders,
                                    .dismissed = dismissed,
                                    .now = now,
                                    .cancellation = cancellation});
    }
    [[nodiscard]] QStringList names(const std::vector<Shot> &shots) const {
        QStringList names;
        for (const Shot &shot : shots)
            names << QDir(m_folder.path()).relativeFilePath(shot.location);
        return names;
    }
    QStringList shown() { return names(read().shots); }
    // How many files a scan opens.
    int opened() {
        const int before = m_files.opened();
        read();
        return m_files.opened() - before;
    }

    Instant now = systemNow();
    bool includesSubfolders = false;
    QSet<QString> dismissed;
    QString customPrefix;
    std::shared_ptr<std::atomic<bool>> cancellation = std::make_shared<std::atomic<bool>>(false);

private:
    const QTemporaryDir m_folder;
    const LinuxFileFactsReader m_facts{};
    const LinuxFolderFiles m_realFiles{m_facts};

protected:
    CountingFolderFiles m_files{m_realFiles};

private:
    const LinuxCaptureMarkers m_markers{};
    const ScreenshotCaptureDetector m_detector{m_markers, m_files};
    FolderReader m_reader{m_files, m_detector, [this] { return customPrefix; }};
};

} // namespace

TEST_F(FolderReaderTest, judgesEachVersionOfAFileOnce) {
    write(firstName);
    write(QStringLiteral("photo.png"));
    write(QStringLiteral("notes.txt"));
    write(QStringLiteral("Screenshot_20261121_101501.gif"));
    EXPECT_EQ(opened(), 2);
    EXPECT_EQ(opened(), 0);
    const struct {
        const char *what;
        std::function<void()> act;
    } changes[]{
        {"added", [this] { write(secondName); }},
        {"longer",
         [this] {
             write(firstName, 1h, pictureBytes("png", {80, 80}));
         }},
        {"modified", [this] { setModified(path(firstName), now); }},
        {"renamed", [this] { QFile::rename(path(secondName), path(QStringLiteral("a.png"))); }},
        {"with other rights", [this] { QFile::setPermissions(path(firstName), QFile::ReadOwner); }},
        {"marked",
         [this] { (void)LinuxCaptureMarkers().setMarker(path(QStringLiteral("photo.png")), true); }},
    };
    for (const auto &[what, act] : changes) {
        act();
        EXPECT_EQ(opened(), 1) << what;
        EXPECT_EQ(opened(), 0) << what;
    }
    customPrefix = QStringLiteral("Bild");
    EXPECT_EQ(opened(), 3);
    EXPECT_EQ(opened(), 0);
}

TEST_F(FolderReaderTest, showsWholeCapturesNewestFirstAsTheirFilesAre) {
    const QString older = write(firstName, 2h);
    const QString newer = write(secondName, 1h);
    write(QStringLiteral("photo.png"));
    write(QStringLiteral("Screenshot_20261121_101503.png"), 1h, pictureBytes("png").first(99));
    write(recordingName, 1h, "no video");
    const FolderScanResult result = read();
    ASSERT_EQ(names(result.shots), QStringList({secondName, firstName}));
    EXPECT_TRUE(result.hasUnfinishedImages && result.hasUnfinishedVideos);
    const LinuxFileFactsReader facts;
    EXPECT_EQ(result.shots[0].location, newer);
    EXPECT_EQ(result.shots[0].createdAt, facts.facts(newer)->createdAt);
    EXPECT_EQ(result.shots[1].identity, ScreenshotFileIdentity::of(older, *facts.facts(older)));
    EXPECT_NE(result.shots[0].stamp, result.shots[1].stamp);
}

TEST_F(FolderReaderTest, aRenamedFileKeepsItsIdentityAndARewrittenOneGetsAnotherStamp) {
    // Modified later than born: creation is birth.
    write(firstName, -1s);
    const Shot before = read().shots.at(0);
    ASSERT_TRUE(QFile::rename(path(firstName), path(secondName)));
    const Shot renamed = read().shots.at(0);
    EXPECT_EQ(renamed.identity, before.identity);
    EXPECT_EQ(renamed.location, path(secondName));
    write(secondName, -2s);
    const Shot rewritten = read().shots.at(0);
    EXPECT_EQ(rewritten.identity, before.identity);
    EXPECT_NE(rewritten.stamp, renamed.stamp);
}

TEST_F(FolderReaderTest, aDismissedVersionStaysHiddenAndASavedOneComesBack) {
    write(firstName);
    write(secondName);
    for (const Shot &shot : read().shots) {
        if (shot.location == path(firstName))
            dismissed.insert(shot.stamp);
    }
    EXPECT_EQ(shown(), QStringList(secondName));
    EXPECT_EQ(shown(), QStringList(secondName));
    write(firstName, 59min);
    EXPECT_EQ(shown(), QStringList({firstName, secondName}));
    dismissed.insert(read().shots.at(0).stamp);
    EXPECT_EQ(shown(), QStringList(secondName));
    dismissed.clear();
    EXPECT_EQ(shown(), QStringList({firstName, secondName}));
}

TEST_F(FolderReaderTest, looksAtAnUnfinishedFileAgainOnlySoOften) {
    write(firstName, 1h, pictureBytes("png").first(99));
    write(recordingName, 1h, "no video");
    int scans = 0;
    for (FolderScanResult result = read(); result.hasUnfinishedImages || result.hasUnfinishedVideos;
         result = read())
        ASSERT_LE(++scans, FolderReader::retryBudget);
    EXPECT_EQ(scans, FolderReader::retryBudget);
    EXPECT_EQ(opened(), 0);
    write(firstName, 1h, pictureBytes("png").first(100));
    EXPECT_TRUE(read().hasUnfinishedImages) << "another version has a budget of its own";
    write(firstName, 1h);
    EXPECT_EQ(shown(), QStringList(firstName));
}

TEST_F(FolderReaderTest, aRecordingThatIsTooYoungIsNotGivenUpInABusyFolder) {
    const auto box = [](const char *type) { return QByteArray::fromHex("00000008") + type; };
    write(recordingName, 0s, box("ftyp") + box("moov"));
    for (int scan = 0; scan < 3 * FolderReader::retryBudget; ++scan) {
        EXPECT_TRUE(read().hasUnfinishedVideos) << scan;
        now += 10ms;
    }
    now += 1s;
    EXPECT_EQ(shown(), QStringList(recordingName));
}

TEST_F(FolderReaderTest, aDateInTheFutureKeepsNoCaptureHidden) {
    const auto box = [](const char *type) { return QByteArray::fromHex("00000008") + type; };
    write(recordingName, -5h, box("ftyp") + box("moov"));
    write(firstName, -5h);
    EXPECT_EQ(read().shots.size(), 2U);
}

TEST_F(FolderReaderTest, tellsOnlyFreshCapturesAsArrivalsAndEachOnce) {
    write(firstName, 119s);
    write(secondName, 121s);
    write(recordingName, 0s, QByteArray());
    EXPECT_EQ(names(read().arrivals), QStringList(firstName));
    EXPECT_TRUE(read().arrivals.empty());
    // A picture that took its time to become whole arrives when it is.
    const QString slow = QStringLiteral("Screenshot_20261121_101503.png");
    write(slow, 0s, pictureBytes("png").first(99));
    EXPECT_TRUE(read().arrivals.empty());
    write(slow, 0s);
    EXPECT_EQ(names(read().arrivals), QStringList(slow));
}

TEST_F(FolderReaderTest, aScanThatWasCancelledForgetsAndAnnouncesNothing) {
    for (int i = 1; i < 10; ++i)
        write(QStringLiteral("Screenshot_20261121_10150%1.png").arg(i), 1min);
    EXPECT_EQ(read().arrivals.size(), 9U);
    const QString late = QStringLiteral("Screenshot_20261121_101600.png");
    write(late, 1min);
    *cancellation = true;
    read();
    *cancellation = false;
    EXPECT_LE(opened(), 1) << "what was known stays known";

    const QString later = QStringLiteral("Screenshot_20261121_101601.png");
    write(later, 1min);
    *cancellation = true;
    read();
    *cancellation = false;
    EXPECT_EQ(names(read().arrivals), QStringList(later)) << "nobody was told of it yet";
}

TEST_F(FolderReaderTest, readsSubfoldersOnlyWhenAsked) {
    QString deep = QStringLiteral("a/b/c");
    ASSERT_TRUE(QDir().mkpath(path(deep)));
    deep += u'/' + secondName;
    write(deep, 2h);
    write(firstName, 1h);
    EXPECT_EQ(shown(), QStringList(firstName));
    includesSubfolders = true;
    EXPECT_EQ(shown(), QStringList({firstName, deep}));
    ASSERT_TRUE(QDir().rename(path(QStringLiteral("a")), path(QStringLiteral("d"))));
    EXPECT_EQ(shown(), QStringList({firstName, QStringLiteral("d/b/c/") + secondName}));
}

TEST_F(FolderReaderTest, passesOverWhatIsNoFileOfTheFolder) {
    const QTemporaryDir elsewhere;
    const QString outside = writeFile(elsewhere.filePath(secondName), pictureBytes("png"));
    ASSERT_TRUE(QFile::link(outside, path(secondName)));
    ASSERT_TRUE(QFile::link(elsewhere.path(), path(QStringLiteral("linked"))));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("gone")), path(QStringLiteral("ksnip_20261121-101501.png"))));
    ASSERT_EQ(::mkfifo(qPrintable(path(QStringLiteral("Screenshot_20261121_101503.png"))), 0600), 0);
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("Screenshot_20261121_101504.png"))));
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral(".hidden"))));
    write(QStringLiteral(".hidden/") + firstName);
    write(QStringLiteral(".Screenshot_20261121_101505.png"));
    write(firstName);
    for (const bool subfolders : {false, true}) {
        includesSubfolders = subfolders;
        EXPECT_EQ(shown(), QStringList(firstName)) << subfolders;
    }
}

TEST_F(FolderReaderTest, aNameThatIsNoTextHidesNothingElse) {
    const QByteArray odd = QFile::encodeName(path(QStringLiteral("Screenshot "))) + "\xff\xfe.png";
    FILE *file = std::fopen(odd.constData(), "w");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    write(QStringLiteral("Screenshot 2024-05-01\n at 10.15.22.png"));
    write(firstName);
    EXPECT_EQ(shown(), QStringList(firstName));
    EXPECT_EQ(std::remove(odd.constData()), 0);
}

TEST_F(FolderReaderTest, aSubfolderThatMayNotBeReadHidesOnlyItself) {
    includesSubfolders = true;
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("locked"))));
    write(QStringLiteral("locked/") + secondName);
    write(firstName);
    ASSERT_EQ(::chmod(qPrintable(path(QString())), 0755), 0);
    ASSERT_EQ(::chmod(qPrintable(path(QStringLiteral("locked"))), 0), 0);
    constexpr uid_t nobody = 65534;
    const uid_t self = ::geteuid();
    ASSERT_TRUE(self != 0 || ::seteuid(nobody) == 0);
    const FolderScanResult result = read();
    ASSERT_TRUE(self != 0 || ::seteuid(self) == 0);
    ASSERT_EQ(::chmod(qPrintable(path(QStringLiteral("locked"))), 0700), 0);
    EXPECT_EQ(result.error, std::nullopt);
    EXPECT_EQ(names(result.shots), QStringList(firstName));
    EXPECT_EQ(shown().size(), 2);
}

TEST_F(FolderReaderTest, aFolderThatIsNotThereIsAnErrorAndWhatWasKnownOfItStays) {
    write(firstName, 1min);
    EXPECT_EQ(read().arrivals.size(), 1U);
    const QString away = path(QString()).chopped(1) + QStringLiteral("-away");
    ASSERT_TRUE(QDir().rename(path(QString()), away));
    const auto error = read().error;
    ASSERT_TRUE(QDir().rename(away, path(QString())));
    EXPECT_TRUE(error && error->domain == posixErrorDomain && error->code == ENOENT);
    EXPECT_EQ(opened(), 0);
    EXPECT_TRUE(read().arrivals.empty());
}
