#include "platform/linux/desktop/QtDisplays.h"

#include "Monitors.h"
#include "support/EventLoop.h"
#include "support/ManualScheduler.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

class QtDisplaysTest : public testing::Test {
protected:
    [[nodiscard]] bool settles(const std::function<bool()> &condition) {
        return eventually([&] {
            m_scheduler.settle();
            return condition();
        });
    }

    ManualScheduler m_scheduler;
    QtDisplays m_displays{m_scheduler};
};

} // namespace

TEST_F(QtDisplaysTest, anotherResolutionIsToldOnceAndKeepsTheIdentifier) {
    runXrandr({QStringLiteral("--newmode"), QStringLiteral("small"), QStringLiteral("25"),
               QStringLiteral("800"), QStringLiteral("820"), QStringLiteral("840"), QStringLiteral("860"),
               QStringLiteral("600"), QStringLiteral("610"), QStringLiteral("620"), QStringLiteral("630")});
    runXrandr({QStringLiteral("--addmode"), QStringLiteral("screen"), QStringLiteral("small")});
    const DisplayFacts before = m_displays.connected().front();
    EXPECT_EQ(before.frame, (ScreenRect{0, 0, 1280, 800}));
    EXPECT_EQ(before.scale, 1);
    int changes = 0;
    const auto observation = m_displays.observe([&] { ++changes; });
    for (const auto &[mode, width] : {std::pair("small", 800.), std::pair("1280x800", 1280.)}) {
        runXrandr({QStringLiteral("--output"), QStringLiteral("screen"), QStringLiteral("--mode"),
                   QString::fromLatin1(mode)});
        EXPECT_TRUE(settles(
            [&, w = width] { return changes > 0 && m_displays.connected().front().frame.width == w; }));
        EXPECT_EQ(m_displays.connected().front().identifier, before.identifier);
    }
}

TEST_F(QtDisplaysTest, aScreenThatComesAndGoesIsTold) {
    int changes = 0;
    const auto observation = m_displays.observe([&] { ++changes; });
    splitScreen();
    ASSERT_TRUE(settles([&] { return changes > 0 && m_displays.connected().size() == 2; }));
    const auto two = m_displays.connected();
    EXPECT_EQ(two[0].name, QGuiApplication::primaryScreen()->name());
    EXPECT_NE(two[0].identifier, two[1].identifier);
    EXPECT_NE(two[0].frame, two[1].frame);
    changes = 0;
    joinScreen();
    EXPECT_TRUE(settles([&] { return changes > 0 && m_displays.connected().size() == 1; }));
    EXPECT_EQ(m_displays.connected().front().frame, (ScreenRect{0, 0, 1280, 800}));
}

TEST_F(QtDisplaysTest, aDeclaredCameraLeavesTheAreasBesideIt) {
    const DisplayFacts plain = m_displays.connected().front();
    EXPECT_EQ(plain.safeAreaTop, 0);
    EXPECT_FALSE(plain.auxiliaryTopLeft);
    const QtDisplays displays(m_scheduler, CameraHousing{plain.name, 180, 32});
    const DisplayFacts display = displays.connected().front();
    EXPECT_EQ(display.safeAreaTop, 32);
    EXPECT_EQ(display.auxiliaryTopLeft, (ScreenRect{0, 0, 550, 32}));
    EXPECT_EQ(display.auxiliaryTopRight, (ScreenRect{730, 0, 550, 32}));
    const QtDisplays others(m_scheduler, CameraHousing{QStringLiteral("another"), 180, 32});
    EXPECT_EQ(others.connected().front().safeAreaTop, 0);
    const QtDisplays wide(m_scheduler, CameraHousing{plain.name, 1280, 32});
    EXPECT_EQ(wide.connected().front().safeAreaTop, 0);
}
