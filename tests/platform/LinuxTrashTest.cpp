#include "platform/linux/LinuxTrash.h"

#include "platform/TrashFixture.h"
#include "support/ScratchMount.h"
#include "support/Unprivileged.h"

#include <QUrl>

#include <cerrno>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace tembra;

namespace {

constexpr auto attribute = "user.app.tembra.test";

void changeMode(const QString &path, mode_t mode) {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
}

mode_t modeOf(const QString &path) {
    struct stat facts {};
    return ::stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 07777 : 0;
}

// The place that a .trashinfo tells, read without the code that wrote it.
QString toldPath(const QByteArray &info) {
    const QList<QByteArray> lines = info.split('\n');
    if (lines.size() != 4 || lines.at(0) != "[Trash Info]" || !lines.at(1).startsWith("Path=") ||
        lines.at(2) != "DeletionDate=2021-03-04T05:06:07" || !lines.at(3).isEmpty())
        return QStringLiteral("not a .trashinfo");
    return QUrl::fromPercentEncoding(lines.at(1).mid(5));
}

using LinuxTrashTest = TrashFixture;

// A second file system whose topmost folder each test furnishes.
class LinuxTrashOnVolume : public TrashFixture {
protected:
    void SetUp() override {
        if (!m_disk.problem().isEmpty())
            GTEST_SKIP() << qPrintable(m_disk.problem());
        QDir().mkpath(top("shots"));
        m_file = writeFile(top("shots/a b.png"), "content");
    }

    [[nodiscard]] QString top(const char *name) const {
        return m_disk.path() + u'/' + QString::fromUtf8(name);
    }
    void remount(unsigned long flags, const char *options) {
        ASSERT_EQ(::mount(nullptr, QFile::encodeName(m_disk.path()).constData(), nullptr, MS_REMOUNT | flags,
                          options),
                  0);
    }

    ScratchMount m_disk{QStringLiteral("tmpfs")};
    QString m_file;
};

} // namespace

TEST_F(LinuxTrashTest, aFileKeepsEverythingOnItsWayThereAndBack) {
    const QByteArray longest = QByteArray("é").repeated(125) + "x.png";
    for (const QByteArray &name :
         {QByteArray("a.png"), QByteArray("50%20 off%.png"), QByteArray("two\nlines"),
          QByteArray("📸 shot.png"), QByteArray(".png"), longest}) {
        const QString file = writeFile(path("shots/sub/" + name), name);
        setModified(file, Instant(std::chrono::nanoseconds(1'500'000'000'123'456'789)));
        ASSERT_EQ(::setxattr(QFile::encodeName(file).constData(), attribute, "x", 1, 0), 0);
        const auto before = m_reader.facts(file);
        Trash::Guard guard = this->guard();
        guard.isExpected = [&](const FileFacts &facts) {
            return facts.resource == before->resource && facts.createdAt == before->createdAt;
        };

        const auto trashed = m_trash.moveToTrash(file, guard);
        ASSERT_TRUE(trashed) << qPrintable(trashed.error().message);
        EXPECT_FALSE(QFile::exists(file));
        EXPECT_EQ(contentOf(*trashed), name);
        const QStringList infos = namesIn(path("data/Trash/info"));
        ASSERT_EQ(infos, QStringList{QFileInfo(*trashed).fileName() + QStringLiteral(".trashinfo")});
        EXPECT_EQ(toldPath(contentOf(path("data/Trash/info/") + infos.first())), file);

        ASSERT_TRUE(m_trash.restore(*trashed, file, guard));
        const auto after = m_reader.facts(file);
        ASSERT_TRUE(after);
        EXPECT_EQ(after->resource, before->resource);
        EXPECT_EQ(after->modifiedAt, before->modifiedAt);
        EXPECT_EQ(::getxattr(QFile::encodeName(file).constData(), attribute, nullptr, 0), 1);
        EXPECT_EQ(namesIn(path("data/Trash/info")) + namesIn(path("data/Trash/files")), QStringList());
    }
    EXPECT_EQ(modeOf(path("data/Trash")), 0700U);
    EXPECT_EQ(modeOf(path("data/Trash/files")), 0700U);
}

TEST_F(LinuxTrashTest, namesakesGetNumbersAndShortenedNamesStayText) {
    const QByteArray longest = QByteArray("📸").repeated(62) + "ab.png";
    QDir().mkpath(path("data/Trash/files/stray.png"));
    for (const auto &[name, first, second] :
         {std::tuple(QByteArray("a.png"), QByteArray("a.png"), QByteArray("a.2.png")),
          std::tuple(QByteArray("stray.png"), QByteArray("stray.2.png"), QByteArray("stray.3.png")),
          std::tuple(QByteArray("1. what it was like"), QByteArray("1. what it was like"),
                     QByteArray("1. what it was like.2")),
          std::tuple(longest, QByteArray("📸").repeated(60) + ".png",
                     QByteArray("📸").repeated(59) + ".2.png")}) {
        for (const QByteArray &expected : {first, second}) {
            const auto trashed = m_trash.moveToTrash(writeFile(path("shots/" + name)), guard());
            ASSERT_TRUE(trashed) << name.constData();
            EXPECT_EQ(QFileInfo(*trashed).fileName(), QString::fromUtf8(expected));
        }
    }
}

TEST_F(LinuxTrashTest, nothingButTheFileAskedAboutIsMoved) {
    const QString file = writeFile(path("shots/sub/a.png"), "asked about");
    const QString outside = writeFile(path("a.png"), "outside");
    QFile::link(file, path("shots/link.png"));
    QFile::link(path("shots/sub"), path("shots/linked"));
    const Trash::Guard unexpected{.isExpected = [](const FileFacts &) { return false; }};
    const struct {
        QString path;
        Trash::Guard guard;
        int code;
    } cases[] = {
        {path("shots/none.png"), guard(), Trash::changed},
        {path("shots/none/a.png"), guard(), Trash::changed},
        {path("shots/sub"), guard(), Trash::changed},
        {path("shots/sub/"), {}, Trash::changed},
        {path("shots/link.png"), guard(), Trash::changed},
        {file + QChar(u'\0'), {}, Trash::changed},
        {file, unexpected, Trash::changed},
        {outside, guard(), Trash::outsideRoot},
        {path("shots/linked/a.png"), guard(), Trash::outsideRoot},
        {path("shots/../a.png"), guard(), Trash::outsideRoot},
        {path("shots/sub/../../a.png"), guard(), Trash::outsideRoot},
    };
    for (const auto &[asked, guard, code] : cases) {
        const auto trashed = m_trash.moveToTrash(asked, guard);
        EXPECT_EQ(codeOf(trashed), code) << qPrintable(asked);
    }
    EXPECT_EQ(contentOf(file) + contentOf(outside), "asked aboutoutside");
    EXPECT_FALSE(QFile::exists(path("data/Trash")));
}

TEST_F(LinuxTrashTest, whatTookTheFilesNameMeanwhileIsMovedBack) {
    const QString file = path("shots/sub/a.png");
    const auto replace = [&](const QByteArray &content) { QFile::remove(file), writeFile(file, content); };
    for (const char *step : {"asked", "infoMade", "infoWritten"}) {
        writeFile(file, "asked about");
        at(step, [&] { replace("newer"); });
        EXPECT_EQ(codeOf(m_trash.moveToTrash(file, guard())), Trash::changed) << step;
        EXPECT_EQ(contentOf(file), "newer");
        EXPECT_EQ(namesIn(path("data/Trash/files")) + namesIn(path("data/Trash/info")), QStringList());
    }
    at("infoWritten", [&] {
        replace("newer");
        at("moved", [&] { writeFile(file, "newest"); });
    });
    EXPECT_EQ(codeOf(m_trash.moveToTrash(file, guard())), Trash::changed);
    EXPECT_EQ(contentOf(file), "newest");
    EXPECT_EQ(contentOf(path("data/Trash/files/a.png")), "newer");
    EXPECT_EQ(namesIn(path("data/Trash/info")), QStringList{QStringLiteral("a.png.trashinfo")});
}

TEST_F(LinuxTrashTest, aFolderSwappedForALinkOnTheWayIsNoWay) {
    QDir().mkpath(path("elsewhere"));
    const QString other = writeFile(path("elsewhere/a.png"), "other");
    writeFile(path("shots/sub/a.png"), "asked about");
    at("asked", [&] {
        QDir().rename(path("shots/sub"), path("away"));
        QFile::link(path("elsewhere"), path("shots/sub"));
    });
    EXPECT_EQ(codeOf(m_trash.moveToTrash(path("shots/sub/a.png"), guard())), Trash::changed);
    EXPECT_EQ(contentOf(other), "other");
    EXPECT_EQ(contentOf(path("away/a.png")), "asked about");
    EXPECT_EQ(namesIn(path("data/Trash/info")), QStringList());
}

TEST_F(LinuxTrashTest, aTrashThatWentAwayIsMadeAgain) {
    ASSERT_TRUE(m_trash.moveToTrash(writeFile(path("shots/a.png")), guard()));
    ASSERT_TRUE(QDir(path("data")).removeRecursively());
    const auto trashed = m_trash.moveToTrash(writeFile(path("shots/b.png"), "b"), guard());
    ASSERT_TRUE(trashed);
    EXPECT_EQ(*trashed, path("data/Trash/files/b.png"));
    EXPECT_EQ(contentOf(*trashed), "b");

    const QString file = writeFile(path("shots/c.png"), "c");
    at("infoWritten", [&] { QDir(path("data")).removeRecursively(); });
    EXPECT_EQ(codeOf(m_trash.moveToTrash(file, guard())), ENOENT);
    EXPECT_EQ(contentOf(file), "c");
}

TEST_F(LinuxTrashTest, whatCannotComeBackStaysInTheTrash) {
    const QString file = writeFile(path("shots/sub/a.png"), "asked about");
    const QString trashed = m_trash.moveToTrash(file, guard()).value_or(QString());
    const auto restoring = [&](const QString &to, const Trash::Guard &guard) {
        const int code = codeOf(m_trash.restore(trashed, to, guard));
        EXPECT_EQ(contentOf(trashed), "asked about") << qPrintable(to);
        EXPECT_EQ(namesIn(path("data/Trash/info")).size(), 1);
        return code;
    };
    writeFile(path("shots/other.png"), "other");
    QFile::link(path("data"), path("shots/linked"));
    QFile::link(path("nowhere"), path("shots/dangling.png"));
    EXPECT_EQ(restoring(file, {.isExpected = [](const auto &) { return false; }}), Trash::notInTrash);
    EXPECT_EQ(restoring(path("shots/other.png"), guard()), Trash::occupied);
    EXPECT_EQ(restoring(path("shots/dangling.png"), guard()), Trash::occupied);
    EXPECT_EQ(restoring(path("shots/linked/a.png"), guard()), Trash::outsideRoot);
    EXPECT_EQ(restoring(path("shots/other.png/a.png"), guard()), Trash::folderUnavailable);
    EXPECT_EQ(restoring(path("none/a.png"), {.root = path("none")}), Trash::folderUnavailable);
    EXPECT_EQ(restoring(path("none/a.png"), {}), Trash::folderUnavailable);
    at("folderOpened", [&] { writeFile(file, "taken"); });
    EXPECT_EQ(restoring(file, guard()), Trash::occupied);
    at("folderOpened", [&] { QDir(path("shots/new")).removeRecursively(); });
    EXPECT_EQ(restoring(path("shots/new/a.png"), guard()), Trash::folderUnavailable);
    EXPECT_EQ(contentOf(path("shots/other.png")) + contentOf(file), "othertaken");
    EXPECT_EQ(codeOf(m_trash.restore(path("shots/other.png"), path("shots/b.png"), {})), Trash::notInTrash);
    EXPECT_EQ(codeOf(m_trash.restore(path("data/Trash/files/none"), path("shots/b.png"), {})),
              Trash::notInTrash);

    QFile::remove(file);
    at("folderOpened", [&] { QFile::remove(trashed), writeFile(trashed, "another"); });
    EXPECT_EQ(codeOf(m_trash.restore(trashed, file, guard())), Trash::notInTrash);
    EXPECT_EQ(contentOf(trashed), "another");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(LinuxTrashTest, foldersThatWentAwayBeneathTheRootAreMadeAgain) {
    QDir().mkpath(path("shots/sub/deeper"));
    const QString file = writeFile(path("shots/sub/deeper/a.png"), "content");
    const QString trashed = m_trash.moveToTrash(file, guard()).value_or(QString());
    ASSERT_TRUE(QDir(path("shots/sub")).removeRecursively());
    ASSERT_TRUE(m_trash.restore(trashed, file, guard()));
    EXPECT_EQ(contentOf(file), "content");
}

TEST_F(LinuxTrashTest, aFolderThatMayNotBeChangedKeepsItsFiles) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "another user is needed";
    changeMode(m_folder.path(), 0755);
    QDir().mkpath(path("data"));
    changeMode(path("data"), 0777);
    const QString file = writeFile(path("shots/a.png"), "content");
    const Unprivileged user;
    const auto refused = m_trash.moveToTrash(file, guard());
    EXPECT_EQ(codeOf(refused), EACCES);
    EXPECT_TRUE(refused.error().message.contains(QStringLiteral("“a.png” could not be moved to the Trash")));
    EXPECT_EQ(contentOf(file), "content");
    EXPECT_EQ(namesIn(path("data/Trash/info")), QStringList());

    const QString trashed = path("data/Trash/files/b.png");
    writeFile(trashed, "b");
    EXPECT_EQ(codeOf(m_trash.restore(trashed, path("shots/b.png"), guard())), EACCES);
    EXPECT_EQ(contentOf(trashed), "b");
}

TEST_F(LinuxTrashOnVolume, theVolumesOwnTrashTakesFilesAndTellsTheirPlaceFromItsTop) {
    const struct {
        const char *what;
        std::function<void()> furnish;
        const char *trash;
    } cases[] = {
        {"nothing", [] {}, ".Trash-0"},
        {"not sticky", [this] { QDir().mkpath(top(".Trash")); }, ".Trash-0"},
        {"sticky", [this] { changeMode(top(".Trash"), 01777); }, ".Trash/0"},
        {"a link to a sticky one",
         [this] {
             QDir().rename(top(".Trash"), top("real"));
             QFile::link(top("real"), top(".Trash"));
         },
         ".Trash-0"},
    };
    for (const auto &[what, furnish, trash] : cases) {
        furnish();
        const auto trashed = m_trash.moveToTrash(m_file, {});
        ASSERT_TRUE(trashed) << what << ": " << qPrintable(trashed.error().message);
        EXPECT_EQ(*trashed, top(trash) + QStringLiteral("/files/a b.png")) << what;
        EXPECT_EQ(toldPath(contentOf(top(trash) + QStringLiteral("/info/a b.png.trashinfo"))),
                  QStringLiteral("shots/a b.png"));
        EXPECT_EQ(modeOf(top(trash)), 0700U);
        ASSERT_TRUE(m_trash.restore(*trashed, m_file, {})) << what;
        EXPECT_EQ(contentOf(m_file), "content");
    }
    EXPECT_FALSE(QFile::exists(path("data/Trash")));
    EXPECT_TRUE(m_disk.unmount()) << "the volume is still held";
}

TEST_F(LinuxTrashOnVolume, aVolumeWithoutAnyPossibleTrashKeepsItsFiles) {
    QDir().mkpath(path("private"));
    const std::function<void()> hindrances[] = {
        [this] { QFile::link(path("private"), top(".Trash-0")); },
        [this] {
            QFile::remove(top(".Trash-0"));
            QDir().mkpath(top(".Trash-0"));
            ASSERT_EQ(::chown(QFile::encodeName(top(".Trash-0")).constData(), 1234, 1234), 0);
        },
        [this] {
            QDir().rmdir(top(".Trash-0"));
            remount(MS_RDONLY, nullptr);
        },
    };
    for (const auto &hinder : hindrances) {
        hinder();
        const auto refused = m_trash.moveToTrash(m_file, {});
        ASSERT_EQ(codeOf(refused), Trash::noTrash);
        EXPECT_EQ(refused.error().message, QStringLiteral("The disk that holds “a b.png” has no Trash."));
        EXPECT_EQ(contentOf(m_file), "content");
    }
    EXPECT_EQ(namesIn(path("private")), QStringList());
}

TEST_F(LinuxTrashOnVolume, aFullVolumeKeepsItsFilesAndNothingElseIsLeft) {
    remount(0, "size=64k");
    QFile filler(top("filler"));
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    const auto refused = m_trash.moveToTrash(m_file, {});
    EXPECT_EQ(codeOf(refused), ENOSPC);
    EXPECT_EQ(refused.error().message, QStringLiteral("There is no room to move “a b.png” to the Trash."));
    EXPECT_EQ(contentOf(m_file), "content");
    EXPECT_EQ(namesIn(top(".Trash-0/info")) + namesIn(top(".Trash-0/files")), QStringList());
}

TEST_F(LinuxTrashOnVolume, anotherMountBeneathTheRootIsOutsideAndHasATrashOfItsOwn) {
    const QString inside = path("shots/sub");
    ASSERT_EQ(::mount(QFile::encodeName(top("shots")).constData(), QFile::encodeName(inside).constData(),
                      nullptr, MS_BIND, nullptr),
              0);
    const QString file = inside + QStringLiteral("/a b.png");
    EXPECT_EQ(codeOf(m_trash.moveToTrash(file, guard())), Trash::outsideRoot);
    EXPECT_EQ(m_trash.moveToTrash(file, {}).value_or(QString()), path("shots/sub/.Trash-0/files/a b.png"));
    ::umount(QFile::encodeName(inside).constData());
}
