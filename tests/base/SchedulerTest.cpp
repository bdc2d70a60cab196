#include "base/MainThread.h"
#include "base/QtScheduler.h"
#include "support/ManualScheduler.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

using namespace std::chrono_literals;
using namespace tembra;

TEST(ManualScheduler, runsDueWorkInOrderAtItsOwnTime) {
    ManualScheduler scheduler;
    std::vector<std::pair<int, Uptime>> ran;
    const WorkItem late = scheduler.schedule(80ms, [&] { ran.emplace_back(2, scheduler.now()); });
    const WorkItem early = scheduler.schedule(10ms, [&] { ran.emplace_back(1, scheduler.now()); });
    scheduler.advance(79ms);
    EXPECT_EQ(ran, (std::vector<std::pair<int, Uptime>>{{1, 10ms}}));
    scheduler.advance(1ms);
    EXPECT_EQ(ran.back(), (std::pair<int, Uptime>{2, 80ms}));
    EXPECT_FALSE(late.isPending());
}

TEST(ManualScheduler, droppingOrReplacingTheHandleCancels) {
    ManualScheduler scheduler;
    int runs = 0;
    {
        const WorkItem dropped = scheduler.schedule(1ms, [&] { ++runs; });
    }
    WorkItem replaced = scheduler.schedule(1ms, [&] { runs += 10; });
    replaced = scheduler.schedule(1ms, [&] { runs += 100; });
    scheduler.advance(1s);
    EXPECT_EQ(runs, 100);
}

TEST(QtScheduler, workMayDropItsOwnHandle) {
    QtScheduler scheduler;
    QEventLoop loop;
    auto item = std::make_unique<WorkItem>();
    *item = scheduler.schedule(
        0ms,
        [&] {
            item.reset();
            loop.quit();
        },
        0ms);
    EXPECT_TRUE(item->isPending());
    loop.exec();
    EXPECT_EQ(item, nullptr);
}

TEST(QtScheduler, postsFromAnyThreadToTheMainThread) {
    QtScheduler scheduler;
    QEventLoop loop;
    std::thread::id ran;
    std::thread poster([&] {
        scheduler.post([&] {
            ran = std::this_thread::get_id();
            loop.quit();
        });
    });
    loop.exec();
    poster.join();
    EXPECT_EQ(ran, std::this_thread::get_id());
}

TEST(QtScheduler, whatIsPostedEndsOnTheMainThread) {
    QtScheduler scheduler;
    QEventLoop loop;
    std::atomic<int> endedElsewhere = 0;
    std::thread poster([&, main = std::this_thread::get_id()] {
        for (int i = 0; i < 20'000; ++i) {
            std::shared_ptr<void> owned(nullptr, [&endedElsewhere, main](void *) {
                endedElsewhere += std::this_thread::get_id() == main ? 0 : 1;
            });
            scheduler.post([owned = std::move(owned)] {});
        }
        scheduler.post([&loop] { loop.quit(); });
    });
    loop.exec();
    poster.join();
    EXPECT_EQ(endedElsewhere, 0);
}

TEST(MainThreadDeathTest, aCallFromAnotherThreadStopsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(std::thread([] { requireMainThread(); }).join(), "called off the main thread");
}
