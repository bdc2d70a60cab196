#include "app/FreedMemory.h"

#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

using namespace tembra;

TEST(FreedMemory, goesBackOnceForAnyNumberOfRequestsAndNotUntilAnother) {
    ManualScheduler scheduler;
    constexpr std::chrono::nanoseconds half = std::chrono::nanoseconds(FreedMemory::delay) / 2;
    int times = 0;
    FreedMemory memory(scheduler, [&times] { ++times; });
    memory.giveBackSoon();
    scheduler.advance(half);
    memory.giveBackSoon();
    EXPECT_EQ(times, 0);
    scheduler.advance(half);
    EXPECT_EQ(times, 1);
    scheduler.advance(std::chrono::hours(1));
    EXPECT_EQ(times, 1);
    memory.giveBackSoon();
    scheduler.advance(FreedMemory::delay);
    EXPECT_EQ(times, 2);
}
