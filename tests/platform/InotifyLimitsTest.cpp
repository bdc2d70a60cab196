#include "platform/linux/InotifyFolderEvents.h"
#include "support/Files.h"
#include "support/ManualScheduler.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <sched.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

// Folder events that got no inotify instance, because no descriptor was left when they were made.
std::unique_ptr<InotifyFolderEvents> eventsWithoutInstance(const LinuxFileFactsReader &reader,
                                                           Scheduler &scheduler) {
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &none);
    auto events = std::make_unique<InotifyFolderEvents>(reader, scheduler);
    ::setrlimit(RLIMIT_NOFILE, &before);
    return events;
}

constexpr int notPermitted = 77;

void writeText(const char *path, const QByteArray &text) {
    QFile file(QString::fromUtf8(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text) != text.size())
        std::_Exit(notPermitted);
}

// Lets this process have so many folder watches, in a user namespace of its own; ends it where that is not
// permitted.
void permitWatches(int count) {
    const QByteArray user = QByteArray::number(::geteuid());
    if (::unshare(CLONE_NEWUSER) != 0)
        std::_Exit(notPermitted);
    writeText("/proc/self/uid_map", user + ' ' + user + " 1");
    writeText("/proc/sys/user/max_inotify_watches", QByteArray::number(count));
}

// Runs a function in a child process, which has but one thread.
int exitCodeOfChild(const std::function<void()> &run) {
    const pid_t child = ::fork();
    if (child == 0) {
        run();
        std::_Exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Fails the child process with its line number.
#define CHILD_EXPECT(condition)                                                                              \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "line %d: %s\n", __LINE__, #condition);                                     \
            std::_Exit(1);                                                                                   \
        }                                                                                                    \
    } while (false)

} // namespace

TEST(InotifyLimits, withoutAnInstanceTheFolderIsLookedAtEveryFewSeconds) {
    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("Screenshots"));
    ASSERT_TRUE(QDir().mkdir(folder));
    const LinuxFileFactsReader reader;
    ManualScheduler scheduler;
    const auto events = eventsWithoutInstance(reader, scheduler);
    std::uint32_t bits = 0;
    std::unique_ptr<FolderEvents::Handle> handle;
    testing::internal::CaptureStderr();
    auto directory = events->watchDirectory(folder, [&](std::uint32_t told) {
        bits = told;
        if (told & FolderEvents::remove)
            handle.reset();
    });
    const std::string said = testing::internal::GetCapturedStderr();
    ASSERT_TRUE(directory);
    EXPECT_NE(said.find(qPrintable(folder)), std::string::npos) << said;
    handle = *std::move(directory);
    EXPECT_EQ(events->watchTree(folder, true, 1ms, {}).error().code, EMFILE);

    scheduler.advance(1min);
    EXPECT_EQ(bits, 0U);
    writeFile(folder + QStringLiteral("/a.png"));
    scheduler.advance(10s);
    EXPECT_EQ(bits, FolderEvents::write);
    bits = 0;
    scheduler.advance(1min);
    EXPECT_EQ(bits, 0U);
    ASSERT_TRUE(QDir(folder).removeRecursively());
    scheduler.advance(10s);
    EXPECT_EQ(bits, FolderEvents::remove);
    EXPECT_EQ(scheduler.pendingCount(), 0) << "a dropped handle looks no more";
    EXPECT_EQ(events->watchDirectory(folder, {}).error().code, ENOENT);
}

TEST(InotifyLimits, withoutWatchesForAllSubfoldersTheStreamSaysSoOnceAndGoesOn) {
    const QTemporaryDir home;
    for (const char *name : {"a", "b", "c", "d", "e", "f"})
        ASSERT_TRUE(QDir().mkdir(home.filePath(QString::fromUtf8(name))));
    const auto child = [&home] {
        permitWatches(4 + static_cast<int>(QDir(home.path()).absolutePath().count(u'/')));
        const LinuxFileFactsReader reader;
        ManualScheduler scheduler;
        InotifyFolderEvents events(reader, scheduler);
        std::vector<TreeEvent> received;
        auto tree = events.watchTree(home.path(), true, 1ms, [&](const std::vector<TreeEvent> &told) {
            received.insert(received.end(), told.begin(), told.end());
        });
        CHILD_EXPECT(tree);
        scheduler.advance(1s);
        CHILD_EXPECT(received.size() == 1);
        CHILD_EXPECT(received.front().path == home.path());
        CHILD_EXPECT(received.front().flags == (TreeEvent::mustScanSubdirectories | TreeEvent::userDropped));

        received.clear();
        writeFile(home.filePath(QStringLiteral("a.png")));
        while (scheduler.pendingCount() == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        scheduler.advance(1s);
        CHILD_EXPECT(!received.empty() && received.back().path.endsWith(QStringLiteral("/a.png")));
    };
    const int code = exitCodeOfChild(child);
    if (code == notPermitted)
        GTEST_SKIP() << "no user namespace of our own is permitted here";
    EXPECT_EQ(code, 0);
}

TEST(InotifyLimits, withoutAWatchForTheFolderItIsLookedAtInstead) {
    const QTemporaryDir home;
    const auto child = [&home] {
        permitWatches(0);
        const LinuxFileFactsReader reader;
        ManualScheduler scheduler;
        InotifyFolderEvents events(reader, scheduler);
        std::uint32_t bits = 0;
        const auto directory = events.watchDirectory(home.path(), [&](std::uint32_t told) { bits = told; });
        CHILD_EXPECT(directory);
        CHILD_EXPECT(events.watchTree(home.path(), true, 1ms, {}).error().code == ENOSPC);
        writeFile(home.filePath(QStringLiteral("a.png")));
        scheduler.advance(10s);
        CHILD_EXPECT(bits == FolderEvents::write);
    };
    const int code = exitCodeOfChild(child);
    if (code == notPermitted)
        GTEST_SKIP() << "no user namespace of our own is permitted here";
    EXPECT_EQ(code, 0);
}
