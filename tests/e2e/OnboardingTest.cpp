#include "DesktopHands.h"
#include "TembraProcess.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

QString text(const char *words) {
    return QString::fromUtf8(words);
}

// A home that Tembra has never seen, and somebody who meets it there.
class Onboarding : public testing::Test {
protected:
    Onboarding() { tembra.forgetSettings(); }

    [[nodiscard]] bool isAt(const char *step) const {
        return tembra.waitFor([step](const QJsonObject &status) {
            return status[u"onboarding"][u"visible"].toBool() &&
                   status[u"onboarding"][u"step"].toString() == QString::fromUtf8(step);
        });
    }
    [[nodiscard]] bool isOver() const {
        return tembra.waitFor([](const QJsonObject &status) {
            return !status[u"onboarding"][u"visible"].toBool() &&
                   status[u"onboarding"][u"step"].toString() == u"done";
        });
    }
    [[nodiscard]] bool isShelfOpen(bool isOpen = true) const {
        return tembra.waitFor(
            [isOpen](const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool() == isOpen; });
    }
    [[nodiscard]] QString folder() const { return tembra.status()[u"folder"][u"path"].toString(); }
    void capture() const { EXPECT_EQ(tembra.tool(text("scrot"), {}).exitStatus, 0); }
    // Whether the window that has the keyboard is the onboarding's.
    [[nodiscard]] bool isActive() const {
        return tembra.waitFor([this](const QJsonObject &) {
            const auto active = tembra.tool(text("xdotool"), {text("getactivewindow"), text("getwindowpid")});
            return active.output.trimmed() == QString::number(tembra.processId());
        });
    }

    TembraProcess tembra;
    DesktopHands hands{tembra};
};

} // namespace

TEST_F(Onboarding, leadsFromTheFirstStartToTheFirstCaptureByThePointer) {
    const QString desktop = tembra.home() + text("/Desktop");
    QDir().mkpath(desktop);
    const QString lying = text("Screenshot from 2026-11-20 10-15-22.png");
    ASSERT_EQ(tembra.tool(text("scrot"), {desktop + u'/' + lying}).exitStatus, 0);
    tembra.start();
    ASSERT_TRUE(isAt("introduction"));
    EXPECT_TRUE(isActive());
    EXPECT_TRUE(hands.sees(text("Your screenshots, always at hand")));
    ASSERT_TRUE(hands.clickControl(text("Continue")));

    ASSERT_TRUE(isAt("folder"));
    EXPECT_TRUE(hands.sees(text("~/Pictures/Screenshots")));
    EXPECT_TRUE(folder().isEmpty()) << "nothing is taken without an answer";
    ASSERT_TRUE(hands.clickControl(text("Use This Folder")));
    ASSERT_TRUE(hands.clickControl(text("Move Screenshots")));

    ASSERT_TRUE(isAt("firstScreenshot"));
    EXPECT_EQ(folder(), tembra.screenshots());
    EXPECT_TRUE(hands.sees(text("1 screenshot was moved from the Desktop.")));
    EXPECT_TRUE(QFile::exists(tembra.screenshots() + u'/' + lying));
    EXPECT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt() == 1; }));
    EXPECT_TRUE(hands.sees(text("Take your first screenshot"))) << "what was moved is no capture";
    capture();
    EXPECT_TRUE(hands.sees(text("Got it! First one caught")));
    ASSERT_TRUE(hands.clickControl(text("Done")));
    EXPECT_TRUE(isOver());
    EXPECT_TRUE(isShelfOpen());

    EXPECT_EQ(tembra.command({text("quit")}).exitStatus, 0);
    ASSERT_TRUE(tembra.waitForEnd());
    tembra.start();
    EXPECT_TRUE(isOver()) << "from then on it goes straight to the shelf";
    EXPECT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt() == 2; }));
}

TEST_F(Onboarding, isTakenUpByTheKeyboardAfterTheProgramWasKilled) {
    tembra.start();
    ASSERT_TRUE(isAt("introduction"));
    EXPECT_TRUE(isActive());
    hands.press({text("Return")});
    ASSERT_TRUE(isAt("folder"));
    tembra.kill();
    tembra.start();
    ASSERT_TRUE(isAt("introduction"));
    EXPECT_TRUE(folder().isEmpty());
    EXPECT_TRUE(isActive());
    hands.press({text("Return")});
    ASSERT_TRUE(isAt("folder"));
    ASSERT_TRUE(hands.sees(text("Use This Folder")));
    hands.press({text("Return")});
    ASSERT_TRUE(isAt("firstScreenshot"));
    hands.press({text("Left")});
    ASSERT_TRUE(isAt("folder"));
    hands.press({text("Escape")});
    ASSERT_TRUE(tembra.waitFor(
        [](const QJsonObject &status) { return !status[u"onboarding"][u"visible"].toBool(); }));

    // Opened again it comes back, the shelf only where that is asked for.
    EXPECT_EQ(tembra.startAgain().exitStatus, 0);
    ASSERT_TRUE(isAt("folder"));
    EXPECT_TRUE(isActive());
    EXPECT_TRUE(isShelfOpen(false));
    EXPECT_EQ(tembra.command({text("open")}).exitStatus, 0);
    EXPECT_TRUE(isShelfOpen());
    EXPECT_EQ(tembra.command({text("close")}).exitStatus, 0);
    tembra.kill();
    tembra.start();
    ASSERT_TRUE(isAt("firstScreenshot")) << "what is answered is not asked again";
    ASSERT_TRUE(hands.clickControl(text("Skip")));
    EXPECT_TRUE(isOver());
    EXPECT_TRUE(isShelfOpen());
}

TEST_F(Onboarding, whoeverClosesItAfterTheFirstCaptureIsDone) {
    tembra.start();
    ASSERT_TRUE(isAt("introduction"));
    EXPECT_TRUE(isActive());
    hands.press({text("Return")});
    ASSERT_TRUE(hands.clickControl(text("Use This Folder")));
    ASSERT_TRUE(isAt("firstScreenshot"));
    capture();
    ASSERT_TRUE(hands.sees(text("Got it! First one caught")));
    tembra.kill();
    tembra.start();
    EXPECT_TRUE(isOver());
    EXPECT_TRUE(isShelfOpen(false));
}
