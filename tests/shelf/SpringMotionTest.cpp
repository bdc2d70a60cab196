#include "shelf/SpringMotion.h"

#include <gtest/gtest.h>

#include <cmath>

using tembra::SpringMotion;
using Time = SpringMotion::Time;

TEST(SpringMotion, goesToItsTargetWithoutOvershootAndRestsThere) {
    SpringMotion motion(0);
    motion.retarget(100, SpringMotion::settling);
    double before = -1;
    for (double t = 0; t <= 0.22; t += 0.01) {
        const double value = motion.value(Time(t));
        EXPECT_GT(value, before);
        EXPECT_LE(value, 100);
        before = value;
    }
    EXPECT_GT(motion.value(Time(0.2)), 97);
    EXPECT_EQ(motion.value(SpringMotion::settling), 100);
}

TEST(SpringMotion, turnsRoundAtAnyMomentWithoutAJumpInPlaceOrSpeed) {
    for (const double at : {0.0, 0.03, 0.1, 0.21}) {
        SpringMotion motion(0);
        motion.retarget(100, SpringMotion::settling);
        constexpr double step = 1e-5;
        const double place = motion.value(Time(at));
        const double speed = (motion.value(Time(at + step)) - place) / step;
        motion.retarget(0, Time(at));
        EXPECT_NEAR(motion.value(Time(0)), place, 1e-9) << at;
        EXPECT_NEAR((motion.value(Time(step)) - place) / step, speed, 2) << at;
        EXPECT_EQ(motion.value(SpringMotion::settling), 0);
    }
}

TEST(SpringMotion, aJumpNeedsNoTime) {
    SpringMotion motion(0);
    motion.retarget(100, SpringMotion::settling);
    motion.jump(40);
    EXPECT_EQ(motion.value(Time(0)), 40);
    EXPECT_EQ(motion.target(), 40);
}
