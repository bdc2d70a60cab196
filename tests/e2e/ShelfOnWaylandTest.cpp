#include "TembraProcess.h"
#include "support/WaylandCompositor.h"
#include "support/WaylandHands.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>
#include <QRect>

#include <gtest/gtest.h>

#include <linux/input-event-codes.h>

using namespace tembra;

namespace {

// Two outputs side by side, the right one of twice the scale, and a hand on the pointer and the keys. Points
// of the compositor's layout.
class ShelfOnWayland : public testing::Test {
protected:
    static constexpr QRect left{0, 0, 1280, 720};
    static constexpr QRect right{1280, 0, 800, 600};
    static constexpr QSize both{2080, 720};
    static constexpr QPoint aside{640, 650};
    static constexpr QPoint firstTile{340, 100};

    ShelfOnWayland() {
        if (!compositor.isRunning() || !hands.areReady())
            return;
        tembra.emplace();
        tembra->choosePlatformItself();
        tembra->setSettings({{QStringLiteral("displayPreference"), QStringLiteral("all")}});
        hands.moveTo(aside);
        tembra->start();
    }

    void SetUp() override {
        if (!tembra)
            GTEST_SKIP() << "sway is not installed or does not run here";
    }

    // As the screenshot tool of this desktop would, of what is to be seen there.
    void capture(int second) {
        const auto answer = tembra->tool(
            QStringLiteral("grim"),
            {QStringLiteral("%1/20261121_10h15m0%2s_grim.png").arg(tembra->screenshots()).arg(second)});
        ASSERT_EQ(answer.exitStatus, 0) << answer.error.toStdString();
    }
    void sway(const char *command) {
        tembra->tool(QStringLiteral("swaymsg"), QString::fromLatin1(command).split(u' '));
    }
    static QPoint notch(const QRect &output) { return {output.center().x(), output.top() + 2}; }

    static bool isOpen(const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool(); }
    static int count(const QJsonObject &status) { return status[u"screenshots"][u"count"].toInt(); }
    static qsizetype selectedCount(const QJsonObject &status) {
        return status[u"screenshots"][u"selected"].toArray().size();
    }
    [[nodiscard]] bool waitFor(const std::function<bool(const QJsonObject &)> &wish) const {
        return tembra->waitFor(wish);
    }
    // Whether it opens in the middle of that output's top edge.
    [[nodiscard]] bool opensBelow(const QRect &output) {
        return waitFor([&](const QJsonObject &status) {
            // No hand is quite still; a compositor may look at the pointer only when it moves.
            hands.moveTo(notch(output) + QPoint(++steps % 2, 0));
            const QJsonArray frame = status[u"shelf"][u"frame"].toArray();
            return isOpen(status) && frame[0].toInt() + frame[2].toInt() / 2 == output.center().x() + 1 &&
                   frame[1].toInt() == 0 && frame[2].toInt() > 700;
        });
    }
    [[nodiscard]] bool closesWhenThePointerLeaves() {
        hands.moveTo(aside);
        return waitFor([](const QJsonObject &status) { return !isOpen(status); });
    }
    [[nodiscard]] std::string said() {
        return QJsonDocument(tembra->status()).toJson().toStdString() + tembra->log().toStdString();
    }

    WaylandCompositor compositor{2, "output HEADLESS-1 resolution 1280x720 position 0 0 scale 1\n"
                                    "output HEADLESS-2 resolution 1600x1200 position 1280 0 scale 2\n"};
    WaylandHands hands{both};
    std::optional<TembraProcess> tembra;
    int steps = 0;
};

} // namespace

TEST_F(ShelfOnWayland, opensAtTheEdgeOfEachOutputAndClosesWhenThePointerLeaves) {
    for (const QRect &output : {left, right, left}) {
        EXPECT_TRUE(opensBelow(output)) << said();
        // Onto the panel, which keeps it open.
        hands.moveTo(notch(output) + QPoint(0, 100));
        EXPECT_TRUE(isOpen(tembra->status()));
        EXPECT_TRUE(closesWhenThePointerLeaves()) << said();
    }
}

TEST_F(ShelfOnWayland, aCaptureIsSelectedCopiedAndRemovedThroughItsMenu) {
    capture(1);
    capture(2);
    ASSERT_TRUE(waitFor([](const QJsonObject &status) { return count(status) == 2; })) << said();
    ASSERT_TRUE(opensBelow(left)) << said();
    hands.click(firstTile, BTN_LEFT);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return selectedCount(status) == 1; })) << said();

    hands.pressWithControl(KEY_A);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return selectedCount(status) == 2; }))
        << "the click gives the keyboard to the shelf";
    hands.pressWithControl(KEY_C);
    EXPECT_TRUE(waitFor([this](const QJsonObject &) {
        return tembra
                   ->tool(QStringLiteral("wl-paste"),
                          {QStringLiteral("--type"), QStringLiteral("text/uri-list")})
                   .output.count(QStringLiteral("_grim.png")) == 2;
    }));

    hands.click(firstTile, BTN_RIGHT);
    hands.moveTo(aside);
    EXPECT_TRUE(isOpen(tembra->status())) << "a menu keeps the shelf open";
    // The last item, coming from below.
    hands.press(KEY_UP);
    hands.press(KEY_ENTER);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return count(status) == 0; })) << said();
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return !isOpen(status); }))
        << "the pointer has left meanwhile";
}

TEST_F(ShelfOnWayland, aClickElsewhereClosesTheMenu) {
    capture(1);
    ASSERT_TRUE(waitFor([](const QJsonObject &status) { return count(status) == 1; })) << said();
    ASSERT_TRUE(opensBelow(left)) << said();
    hands.click(firstTile, BTN_RIGHT);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return selectedCount(status) == 1; })) << said();
    hands.click(aside, BTN_LEFT);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return !isOpen(status); })) << said();
    EXPECT_EQ(count(tembra->status()), 1);
}

TEST_F(ShelfOnWayland, followsOutputsThatChangeAndCome) {
    EXPECT_TRUE(opensBelow(right)) << said();
    EXPECT_TRUE(closesWhenThePointerLeaves()) << said();
    sway("output HEADLESS-2 scale 1.6");
    hands.setLayout({1280 + 1000, 750});
    EXPECT_TRUE(opensBelow({1280, 0, 1000, 750})) << said();
    EXPECT_TRUE(closesWhenThePointerLeaves()) << said();
    sway("create_output");
    sway("output HEADLESS-3 resolution 1280x800 position 2280 0");
    hands.setLayout({1280 + 1000 + 1280, 800});
    EXPECT_TRUE(opensBelow({2280, 0, 1280, 800})) << said();
    EXPECT_TRUE(closesWhenThePointerLeaves()) << said();
}

TEST_F(ShelfOnWayland, filesAreDraggedIntoTheTrayAndOutOfIt) {
    const QString file = tembra->home() + QStringLiteral("/kept.txt");
    QFile kept(file);
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
    kept.close();
    QProcess partner;
    partner.setProcessEnvironment(tembra->environment());
    partner.start(QStringLiteral(DRAG_PARTNER),
                  {file, QStringLiteral("-platform"), QStringLiteral("wayland")});
    const auto says = [&partner](const QByteArray &words) {
        while (partner.waitForReadyRead(10'000)) {
            if (partner.readAllStandardOutput().contains(words))
                return true;
        }
        return false;
    };
    ASSERT_TRUE(says("ready")) << partner.readAllStandardError().toStdString();
    const QPoint source(200, 500);
    const QPoint target(1000, 500);

    // Until the windows stand, a press goes nowhere.
    EXPECT_TRUE(waitFor([&](const QJsonObject &status) {
        if (isOpen(status) && status[u"shelf"][u"tab"].toString() == QStringLiteral("tray"))
            return true;
        hands.setButton(BTN_LEFT, false);
        hands.moveTo(source);
        hands.setButton(BTN_LEFT, true);
        for (const QPoint &point : {source + QPoint(30, -30), notch(left), notch(left) + QPoint(1, 0)})
            hands.moveTo(point);
        return false;
    })) << said();
    // Where the panel is not yet, nothing can be dropped.
    EXPECT_TRUE(waitFor(
        [](const QJsonObject &status) { return status[u"shelf"][u"frame"].toArray()[3].toInt() == 256; }));
    for (const QPoint point : {QPoint(640, 60), QPoint(640, 130), QPoint(641, 131)})
        hands.moveTo(point);
    // Who lets go at once lets go before it is known whether the file may be put there.
    EXPECT_TRUE(isOpen(tembra->status()));
    hands.setButton(BTN_LEFT, false);
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return status[u"tray"][u"count"].toInt() == 1; }))
        << said();

    hands.moveTo(firstTile);
    hands.setButton(BTN_LEFT, true);
    for (const QPoint &point : {firstTile + QPoint(20, 20), QPoint(900, 400), target, target + QPoint(1, 0)})
        hands.moveTo(point);
    EXPECT_TRUE(isOpen(tembra->status())) << "a drag keeps the shelf open";
    hands.setButton(BTN_LEFT, false);
    EXPECT_TRUE(says("dropped " + QFile::encodeName(file)));
    partner.kill();
    partner.waitForFinished();
    EXPECT_TRUE(waitFor([](const QJsonObject &status) { return !isOpen(status); })) << said();
}
