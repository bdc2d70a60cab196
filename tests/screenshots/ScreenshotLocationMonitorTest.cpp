#include "screenshots/ScreenshotLocationMonitor.h"

#include "support/FakeWorkspace.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The first read answers "/1", the second "/2" and so on.
class LocationMonitor : public testing::Test {
protected:
    LocationMonitor() {
        m_monitor->onRead = [this](const ScreenshotDestination &destination) {
            m_received.append(destination.folder);
        };
    }

    void finishReads() {
        do {
            m_queue.runAll();
            m_scheduler.settle();
        } while (m_queue.count() > 0);
    }
    QStringList take() { return std::exchange(m_received, {}); }
    static QStringList folders(std::initializer_list<int> numbers) {
        QStringList paths;
        for (const int number : numbers)
            paths.append(QStringLiteral("/%1").arg(number));
        return paths;
    }

    ManualQueue m_queue;
    ManualScheduler m_scheduler;
    FakeWorkspace m_workspace;
    int m_reads = 0;
    QStringList m_received;
    std::unique_ptr<ScreenshotLocationMonitor> m_monitor = std::make_unique<ScreenshotLocationMonitor>(
        [this] { return ScreenshotDestination::toFolder(QStringLiteral("/%1").arg(++m_reads)); }, m_queue,
        m_scheduler, m_workspace);
};

} // namespace

TEST_F(LocationMonitor, readsOnceAtStartAndWhenAsked) {
    m_monitor->check();
    EXPECT_EQ(m_queue.count(), 0);
    m_monitor->start();
    m_monitor->start();
    EXPECT_TRUE(m_received.isEmpty());
    finishReads();
    EXPECT_EQ(take(), folders({1}));
    m_monitor->check();
    finishReads();
    EXPECT_EQ(take(), folders({2}));
    EXPECT_EQ(m_workspace.observerCount(), 1);
}

TEST_F(LocationMonitor, anyNumberOfChecksDuringAReadLeadToOneMore) {
    m_monitor->start();
    m_monitor->check();
    m_queue.runAll();
    m_monitor->check();
    EXPECT_EQ(m_queue.count(), 0);
    finishReads();
    EXPECT_EQ(take(), folders({1, 2}));
    EXPECT_EQ(m_reads, 2);
}

TEST_F(LocationMonitor, sleepDropsTheReadUnderWayAndWakeReadsAgain) {
    m_monitor->start();
    m_workspace.raise(Workspace::Event::willSleep);
    m_monitor->check();
    finishReads();
    EXPECT_TRUE(take().isEmpty());
    EXPECT_EQ(m_reads, 1);
    m_workspace.raise(Workspace::Event::didWake);
    finishReads();
    EXPECT_EQ(take(), folders({2}));

    // Also when the machine is awake again before the read comes back.
    m_monitor->check();
    m_queue.runAll();
    m_workspace.raise(Workspace::Event::willSleep);
    m_workspace.raise(Workspace::Event::didWake);
    finishReads();
    EXPECT_EQ(take(), folders({4}));

    m_workspace.raise(Workspace::Event::didMount);
    finishReads();
    EXPECT_TRUE(take().isEmpty());
}

TEST_F(LocationMonitor, aReadBegunUnderAnEarlierGenerationIsDropped) {
    m_monitor->start();
    m_monitor->raiseGeneration();
    m_monitor->check();
    finishReads();
    EXPECT_EQ(take(), folders({2}));
    m_monitor->check();
    ++m_monitor->generation;
    finishReads();
    EXPECT_TRUE(take().isEmpty());
}

TEST_F(LocationMonitor, nothingComesAfterItIsStoppedAndItStartsAwake) {
    m_monitor->start();
    m_monitor->stop();
    finishReads();
    m_monitor->check();
    m_workspace.raise(Workspace::Event::didWake);
    finishReads();
    EXPECT_TRUE(take().isEmpty());
    EXPECT_EQ(m_reads, 1);
    EXPECT_EQ(m_workspace.observerCount(), 0);

    m_monitor->start();
    m_workspace.raise(Workspace::Event::willSleep);
    m_monitor->stop();
    m_monitor->start();
    finishReads();
    EXPECT_EQ(take().size(), 1);
}

TEST_F(LocationMonitor, aReadThatOutlivesItIsDropped) {
    m_monitor->start();
    m_queue.runAll();
    m_monitor.reset();
    finishReads();
    EXPECT_TRUE(take().isEmpty());
    EXPECT_EQ(m_workspace.observerCount(), 0);
}
