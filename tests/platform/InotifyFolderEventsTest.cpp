#include "platform/linux/InotifyFolderEvents.h"

#include "base/FilePath.h"
#include "base/QtScheduler.h"
#include "support/Files.h"
#include "support/ScratchMount.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

using Flag = TreeEvent::Flag;

// Runs the event loop until the condition holds; gives whether it came to hold.
template <class Condition>
bool waitFor(Condition condition) {
    constexpr qint64 deadline = 10'000;
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < deadline)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return condition();
}

// A folder that is watched as the screenshot folder is: by itself and with its tree.
class InotifyFolderEventsTest : public testing::Test {
protected:
    InotifyFolderEventsTest() { QDir().mkpath(m_folder); }

    void watch(const QString &folder, bool recursive = true) {
        auto tree = m_events.watchTree(folder, recursive, 1ms, [this](const std::vector<TreeEvent> &events) {
            m_received.insert(m_received.end(), events.begin(), events.end());
        });
        // Last, and of fewer kinds of events: the tree must not lose any to it.
        auto directory = m_events.watchDirectory(folder, [this](std::uint32_t bits) { m_bits |= bits; });
        ASSERT_TRUE(directory && tree);
        m_directory = *std::move(directory);
        m_tree = *std::move(tree);
    }
    void watch() { watch(m_folder); }

    [[nodiscard]] QString path(const QString &name) const { return m_folder + u'/' + name; }
    [[nodiscard]] bool hasEvent(const QString &path, std::uint32_t flags) const {
        return std::ranges::any_of(m_received, [&](const TreeEvent &event) {
            return event.path == path && (event.flags & flags) == flags;
        });
    }
    [[nodiscard]] bool receives(const QString &path, std::uint32_t flags) const {
        return waitFor([&] { return hasEvent(path, flags); });
    }
    [[nodiscard]] bool receivesBits(std::uint32_t bits) const {
        return waitFor([&] { return (m_bits & bits) == bits; });
    }
    void forget() {
        m_received.clear();
        m_bits = 0;
    }

    const QTemporaryDir m_home;
    const QString m_folder = m_home.filePath(QStringLiteral("parent/Screenshots"));
    const LinuxFileFactsReader m_reader{};
    QtScheduler m_scheduler;
    InotifyFolderEvents m_events{m_reader, m_scheduler};
    std::unique_ptr<FolderEvents::Handle> m_directory;
    std::unique_ptr<FolderEvents::Handle> m_tree;
    std::uint32_t m_bits = 0;
    std::vector<TreeEvent> m_received;
};

} // namespace

TEST_F(InotifyFolderEventsTest, tellsOfNamedEntriesAndOfTheFolderAlone) {
    const QString file = path(pathFromBytes("not \n \xff text"));
    const QString moved = path(QStringLiteral("moved"));
    const auto handle = m_events.watchEntries(m_folder, {file.section(u'/', -1)},
                                              [this](std::uint32_t bits) { m_bits |= bits; });
    ASSERT_TRUE(handle);
    const QByteArray bytes = pathBytes(file);
    for (const auto &act : std::initializer_list<std::function<bool()>>{
             [&] { return ::mknod(bytes.constData(), S_IFREG | 0600, 0) == 0; },
             [&] { return ::rename(bytes.constData(), qPrintable(moved)) == 0; },
             [&] { return ::rename(qPrintable(moved), bytes.constData()) == 0; },
             [&] { return ::unlink(bytes.constData()) == 0; }}) {
        forget();
        ASSERT_TRUE(act());
        EXPECT_TRUE(receivesBits(FolderEvents::write));
    }
    forget();
    writeFile(path(QStringLiteral("stranger")));
    ASSERT_TRUE(QDir().rename(m_folder, m_home.filePath(QStringLiteral("renamed"))));
    EXPECT_TRUE(receivesBits(FolderEvents::rename));
    EXPECT_EQ(m_bits, FolderEvents::rename) << "nothing of the other entry";
}

TEST_F(InotifyFolderEventsTest, tellsWhatHappenedToAFileWithRisingIds) {
    const QString a = path(QStringLiteral("a.png"));
    const QString b = path(QStringLiteral("b.png"));
    const QString link = path(QStringLiteral("link.png"));
    const struct {
        const char *what;
        std::function<void()> act;
        QString path;
        std::uint32_t flags;
        std::uint32_t bits;
    } cases[]{
        {"created", [&] { writeFile(a); }, a, Flag::itemCreated | Flag::itemIsFile, FolderEvents::write},
        {"written", [&] { writeFile(a); }, a, Flag::itemModified | Flag::itemIsFile, 0},
        {"given other rights", [&] { QFile::setPermissions(a, QFile::ReadOwner); }, a,
         Flag::itemInodeMetaModified | Flag::itemXattrModified | Flag::itemIsFile, 0},
        {"renamed from", [&] { QFile::rename(a, b); }, a, Flag::itemRenamed | Flag::itemIsFile,
         FolderEvents::write},
        {"renamed to", [&] { QFile::rename(b, a); }, a, Flag::itemRenamed | Flag::itemIsFile,
         FolderEvents::write},
        {"linked hard", [&] { ASSERT_EQ(::link(qPrintable(a), qPrintable(b)), 0); }, b,
         Flag::itemCreated | Flag::itemIsFile | Flag::itemIsHardlink, FolderEvents::write},
        {"linked", [&] { QFile::link(a, link); }, link, Flag::itemCreated | Flag::itemIsSymlink,
         FolderEvents::write},
        {"deleted", [&] { QFile::remove(a); }, a, Flag::itemRemoved | Flag::itemIsFile, FolderEvents::write},
        {"a new folder", [&] { QDir().mkdir(path(QStringLiteral("c"))); }, path(QStringLiteral("c")),
         Flag::itemCreated | Flag::itemIsDirectory, FolderEvents::write},
    };
    watch();
    std::uint64_t last = 0;
    for (const auto &[what, act, expected, flags, bits] : cases) {
        forget();
        act();
        EXPECT_TRUE(receives(expected, flags)) << what;
        EXPECT_TRUE(receivesBits(bits)) << what;
        EXPECT_EQ(m_bits & ~std::uint32_t{FolderEvents::write}, 0U) << what << ": the folder itself stays";
        for (const TreeEvent &event : m_received) {
            EXPECT_GT(event.id, last) << what;
            last = event.id;
        }
    }
    forget();
    QFile::setPermissions(m_folder,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther);
    EXPECT_TRUE(receivesBits(FolderEvents::attrib));
}

TEST_F(InotifyFolderEventsTest, aFileWrittenPieceByPieceIsToldOnceItIsClosed) {
    watch();
    QFile file(path(QStringLiteral("a.mp4")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 100; ++i) {
        file.write("x");
        file.flush();
    }
    ASSERT_TRUE(receives(file.fileName(), Flag::itemCreated));
    file.close();
    ASSERT_TRUE(receives(file.fileName(), Flag::itemModified));
    EXPECT_EQ(m_received.size(), 2U);
}

TEST_F(InotifyFolderEventsTest, followsSubfoldersAsTheyComeGoAndMove) {
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("old/deep"))));
    watch();
    const auto isWatched = [this](const QString &folder) {
        const QString file = path(folder) + QStringLiteral("/a.png");
        forget();
        writeFile(file);
        const bool isTold = receives(file, Flag::itemModified | Flag::itemIsFile);
        QFile::remove(file);
        return isTold;
    };
    EXPECT_TRUE(isWatched(QStringLiteral("old/deep")));
    // The inner ones are made before the outer one is known.
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("new/inner/most"))));
    EXPECT_TRUE(receives(path(QStringLiteral("new")), Flag::itemIsDirectory));
    EXPECT_TRUE(isWatched(QStringLiteral("new/inner/most")));

    ASSERT_TRUE(QDir().rename(path(QStringLiteral("old")), path(QStringLiteral("new/moved"))));
    EXPECT_TRUE(receives(path(QStringLiteral("new/moved")), Flag::itemRenamed | Flag::itemIsDirectory));
    EXPECT_TRUE(isWatched(QStringLiteral("new/moved/deep")));

    const QString outside = m_home.filePath(QStringLiteral("outside"));
    ASSERT_TRUE(QDir().rename(path(QStringLiteral("new/moved")), outside));
    EXPECT_TRUE(receives(path(QStringLiteral("new/moved")), Flag::itemRenamed));
    forget();
    writeFile(outside + QStringLiteral("/deep/a.png"));
    EXPECT_TRUE(isWatched(QStringLiteral("new/inner")));
    EXPECT_FALSE(hasEvent(path(QStringLiteral("new/moved/deep/a.png")), 0)) << "it left the tree";

    ASSERT_TRUE(QDir().rename(outside, path(QStringLiteral("back"))));
    EXPECT_TRUE(receives(path(QStringLiteral("back")), Flag::itemRenamed));
    EXPECT_TRUE(isWatched(QStringLiteral("back/deep")));

    watch(m_folder, false);
    forget();
    writeFile(path(QStringLiteral("back/b.png")));
    writeFile(path(QStringLiteral("b.png")));
    EXPECT_TRUE(receives(path(QStringLiteral("b.png")), Flag::itemModified));
    EXPECT_FALSE(hasEvent(path(QStringLiteral("back/b.png")), 0)) << "subfolders were not asked for";
}

TEST_F(InotifyFolderEventsTest, tellsWhenTheFolderItselfGoesAndCanBeWatchedWhenItIsBack) {
    const QString away = m_home.filePath(QStringLiteral("away"));
    const QString parent = QFileInfo(m_folder).path();
    const struct {
        const char *what;
        std::function<bool()> leave;
        std::function<bool()> comeBack;
        std::uint32_t bits;
    } cases[]{
        {"deleted", [&] { return QDir().rmdir(m_folder); }, [&] { return QDir().mkdir(m_folder); },
         FolderEvents::remove},
        {"renamed", [&] { return QDir().rename(m_folder, away); },
         [&] { return QDir().rename(away, m_folder); }, FolderEvents::rename},
        {"its parent renamed", [&] { return QDir().rename(parent, away); },
         [&] { return QDir().rename(away, parent); }, 0},
    };
    for (const auto &[what, leave, comeBack, bits] : cases) {
        forget();
        watch();
        ASSERT_TRUE(leave()) << what;
        EXPECT_TRUE(receivesBits(bits)) << what;
        EXPECT_TRUE(receives(m_folder, Flag::rootChanged)) << what;
        EXPECT_EQ(m_events.watchDirectory(m_folder, {}).error().code, ENOENT) << what;
        EXPECT_EQ(m_events.watchTree(m_folder, true, 1ms, {}).error().code, ENOENT) << what;

        ASSERT_TRUE(comeBack()) << what;
        m_directory.reset();
        m_tree.reset();
        watch();
        forget();
        const QString file = writeFile(path(QStringLiteral("a.png")));
        EXPECT_TRUE(receives(file, Flag::itemModified)) << what;
        EXPECT_TRUE(receivesBits(FolderEvents::write)) << what;
        ASSERT_TRUE(QFile::remove(file));
    }
}

TEST_F(InotifyFolderEventsTest, tellsThatTheFileSystemWasUnmounted) {
    ScratchMount disk(QStringLiteral("tmpfs"));
    if (!disk.problem().isEmpty())
        GTEST_SKIP() << qPrintable(disk.problem());
    const QString folder = disk.path() + QStringLiteral("/Screenshots");
    ASSERT_TRUE(QDir().mkdir(folder));
    watch(folder);
    ASSERT_TRUE(disk.unmount());
    EXPECT_TRUE(receivesBits(FolderEvents::revoke));
    EXPECT_TRUE(receives(folder, Flag::unmount));
}

TEST_F(InotifyFolderEventsTest, aFullQueueIsToldAndLosesNoSubfolder) {
    QFile limit(QStringLiteral("/proc/sys/fs/inotify/max_queued_events"));
    ASSERT_TRUE(limit.open(QIODevice::ReadOnly));
    const int most = limit.readAll().trimmed().toInt();
    if (most <= 0 || most > 200'000)
        GTEST_SKIP() << "the queue takes " << most << " events";
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("gone"))));
    watch();
    // The kernel leaves out an event that equals the last one: two names in turn.
    const QByteArray names[2]{QFile::encodeName(path(QStringLiteral("a"))),
                              QFile::encodeName(path(QStringLiteral("b")))};
    writeFile(path(QStringLiteral("a")));
    for (int i = 0; i < most; ++i)
        ASSERT_EQ(::rename(names[i % 2].constData(), names[(i + 1) % 2].constData()), 0);
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("unseen/deep"))));
    ASSERT_TRUE(QDir().rename(path(QStringLiteral("gone")), m_home.filePath(QStringLiteral("gone"))));
    EXPECT_TRUE(receives(m_folder, Flag::mustScanSubdirectories | Flag::kernelDropped));
    EXPECT_TRUE(receivesBits(FolderEvents::write));

    forget();
    const QString file = writeFile(path(QStringLiteral("unseen/deep/a.png")));
    EXPECT_TRUE(receives(file, Flag::itemModified)) << "a folder made meanwhile is watched";
    writeFile(m_home.filePath(QStringLiteral("gone/a.png")));
    writeFile(path(QStringLiteral("end.png")));
    EXPECT_TRUE(receives(path(QStringLiteral("end.png")), Flag::itemModified));
    EXPECT_FALSE(hasEvent(path(QStringLiteral("gone/a.png")), 0)) << "one moved away meanwhile is not";
}

TEST_F(InotifyFolderEventsTest, aHandleMayBeDroppedWithinItsCallback) {
    int calls = 0;
    std::unique_ptr<FolderEvents::Handle> other;
    auto directory = m_events.watchDirectory(m_folder, [&](std::uint32_t) {
        ++calls;
        m_directory.reset();
        m_tree.reset();
    });
    auto tree = m_events.watchTree(m_folder, true, 0ms, [&](const std::vector<TreeEvent> &) {
        ++calls;
        m_directory.reset();
        m_tree.reset();
    });
    auto last = m_events.watchTree(m_folder, true, 20ms, [&](const std::vector<TreeEvent> &events) {
        m_received = events;
        other.reset();
    });
    ASSERT_TRUE(directory && tree && last);
    m_directory = *std::move(directory);
    m_tree = *std::move(tree);
    other = *std::move(last);
    for (const char *name : {"a", "b", "c"})
        writeFile(path(QString::fromUtf8(name)));
    EXPECT_TRUE(waitFor([&] { return !other; }));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(hasEvent(path(QStringLiteral("c")), Flag::itemModified)) << "the other stream goes on";
}
