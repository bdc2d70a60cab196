#include "shelf/CaptureAnnouncer.h"

#include "support/ManualScheduler.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

class CaptureAnnouncerTest : public testing::Test {
protected:
    CaptureAnnouncerTest() {
        announcer.canShow = [this] { return closed; };
        announcer.onShow = [this](const std::optional<CaptureNotification> &notification) {
            shown = notification;
        };
    }

    void capture(const char *path) {
        announcer.announceCaptures({{.path = QString::fromLatin1(path)}}, QStringLiteral("Got it"));
    }
    [[nodiscard]] QString text() const { return shown ? shown->text : QString(); }

    ManualScheduler scheduler;
    CaptureAnnouncer announcer{scheduler};
    bool closed = true;
    std::optional<CaptureNotification> shown;
};

TEST_F(CaptureAnnouncerTest, eachCaptureOfASeriesKeepsTheNoticeOpen) {
    capture("/a.png");
    scheduler.advance(2900ms);
    capture("/b.png");
    scheduler.advance(2900ms);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->captureCount, 2);
    scheduler.advance(100ms);
    EXPECT_FALSE(shown);

    capture("/c.png");
    EXPECT_EQ(shown->captureCount, 1) << "a new series begins";
}

TEST_F(CaptureAnnouncerTest, whatIsHeldStaysAndThenBeginsItsTimeAnew) {
    capture("/a.png");
    announcer.hold(true);
    scheduler.advance(1min);
    capture("/b.png");
    scheduler.advance(1min);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->captureCount, 2);
    announcer.hold(false);
    scheduler.advance(2900ms);
    EXPECT_TRUE(shown);
    scheduler.advance(100ms);
    EXPECT_FALSE(shown);
    announcer.hold(true);
    capture("/c.png");
    scheduler.advance(3s);
    EXPECT_FALSE(shown) << "a pointer that rested where nothing showed holds nothing";
}

TEST_F(CaptureAnnouncerTest, aFolderNoticeWaitsForItsTurn) {
    capture("/a.png");
    announcer.announceFolder(QStringLiteral("one"));
    announcer.announceFolder(QStringLiteral("two"));
    EXPECT_EQ(text(), QStringLiteral("Got it"));
    scheduler.advance(3s);
    EXPECT_EQ(text(), QStringLiteral("two"));
    capture("/b.png");
    EXPECT_EQ(shown->captureCount, 1) << "a capture takes the place of a folder notice";

    scheduler.advance(3s);
    EXPECT_EQ(text(), QStringLiteral("two")) << "which is shown again afterwards";

    announcer.dismiss();
    EXPECT_FALSE(shown);
    closed = false;
    announcer.announceFolder(QStringLiteral("three"));
    capture("/c.png");
    EXPECT_FALSE(shown) << "nothing is announced over the open shelf";
    closed = true;
    announcer.flushFolderNotification();
    EXPECT_EQ(text(), QStringLiteral("three"));

    announcer.dismiss();
    closed = false;
    announcer.announceFolder(QStringLiteral("four"));
    announcer.forgetFolder();
    closed = true;
    announcer.flushFolderNotification();
    EXPECT_FALSE(shown) << "it is no longer so";
}
