#include "base/ThreadQueue.h"

#include <QThread>

#include <gtest/gtest.h>

#include <future>
#include <vector>

using namespace tembra;

TEST(ThreadQueue, runsJobsInOrderOnANamedThread) {
    ThreadQueue queue(QStringLiteral("Tembra.Test"));
    std::vector<int> order;
    QString name;
    std::promise<void> finished;
    for (int i = 0; i < 100; ++i)
        queue.post([&, i] { order.push_back(i); });
    queue.post([&] {
        name = QThread::currentThread()->objectName();
        finished.set_value();
    });
    finished.get_future().wait();
    EXPECT_EQ(name, QStringLiteral("Tembra.Test"));
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(ThreadQueue, destructionFinishesTheRunningJob) {
    std::promise<void> started;
    std::promise<void> release;
    bool finished = false;
    std::thread releaser;
    {
        ThreadQueue queue(QStringLiteral("Tembra.Test"));
        queue.post([&] {
            started.set_value();
            release.get_future().wait();
            finished = true;
        });
        started.get_future().wait();
        releaser = std::thread([&release] { release.set_value(); });
    }
    EXPECT_TRUE(finished);
    releaser.join();
}
