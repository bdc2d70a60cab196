#include "base/SlicedWork.h"

#include "support/ManualScheduler.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

// Steps take time as the test has it.
class SlicedWorkTest : public testing::Test {
protected:
    void start(const QString &name, int steps, std::chrono::milliseconds each) {
        auto left = std::make_shared<int>(steps);
        work.start(
            [this, left, each] {
                now += each;
                return --*left > 0;
            },
            [this, name] { finished += name; });
    }

    ManualScheduler scheduler;
    Uptime now{0};
    SlicedWork work{scheduler, [this] { return now; }};
    QStringList finished;
};

} // namespace

TEST_F(SlicedWorkTest, aShortJobIsDoneAtOnce) {
    start(QStringLiteral("short"), 5, 1ms);
    EXPECT_EQ(finished, QStringList{QStringLiteral("short")});
    EXPECT_FALSE(work.isRunning());
}

TEST_F(SlicedWorkTest, aLongJobLetsTheEventLoopInBetweenAndTheNextJobWait) {
    start(QStringLiteral("long"), 20, 1ms);
    EXPECT_EQ(now, SlicedWork::slice);
    start(QStringLiteral("next"), 1, 1ms);
    EXPECT_EQ(now, SlicedWork::slice);
    EXPECT_TRUE(work.isRunning());
    scheduler.settle();
    EXPECT_EQ(finished, (QStringList{QStringLiteral("long"), QStringLiteral("next")}));
    EXPECT_EQ(now, 21ms);
}

TEST_F(SlicedWorkTest, whatTheEndOfAJobStartsRunsAfterItAndBeforeWhatWaits) {
    start(QStringLiteral("long"), 20, 1ms);
    work.start([] { return false; },
               [this] {
                   start(QStringLiteral("inner"), 1, 1ms);
                   start(QStringLiteral("second inner"), 1, 1ms);
                   EXPECT_TRUE(work.isRunning());
                   finished += QStringLiteral("outer");
               });
    start(QStringLiteral("waiting"), 1, 1ms);
    scheduler.settle();
    EXPECT_EQ(finished.join(u' '), QStringLiteral("long outer inner second inner waiting"));
    EXPECT_FALSE(work.isRunning());
}
