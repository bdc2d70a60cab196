#include "base/Background.h"

#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tembra;

namespace {

struct Owner {
    Generation generation;
    int received = 0;
};

} // namespace

TEST(PerformInBackground, resultArrivesOnlyWhileTheGenerationIsCurrent) {
    ManualScheduler scheduler;
    ManualQueue queue;
    auto owner = std::make_unique<Owner>();
    const auto ask = [&] {
        performInBackground(
            queue, scheduler, owner->generation.ticket(), [] { return 42; },
            [target = owner.get()](int value) { target->received = value; });
    };

    ask();
    queue.runAll();
    EXPECT_EQ(owner->received, 0) << "the result must wait for the main thread";
    scheduler.settle();
    EXPECT_EQ(owner->received, 42);

    owner->received = 0;
    ask();
    owner->generation.advance();
    queue.runAll();
    scheduler.settle();
    EXPECT_EQ(owner->received, 0);

    ask();
    queue.runAll();
    owner.reset();
    scheduler.settle(); // a late result must not touch the dead owner
}
