#include "DummyServer.h"
#include "TembraProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPoint>
#include <QRect>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// DUMMY0, the main display of 1024 × 768, and DUMMY1, which comes and goes. Screen points, which are pixels.
class ShelfOnDisplays : public testing::Test {
protected:
    static constexpr QPoint aside{20, 700};

    static void SetUpTestSuite() {
        server = std::make_unique<DummyServer>();
        if (!server->isRunning())
            return;
        server->xrandr(words("--newmode wide 60 1280 1290 1300 1310 800 810 820 830"));
        server->xrandr(words("--newmode turned 60 720 730 740 750 1280 1290 1300 1310"));
        server->xrandr(words("--addmode DUMMY1 wide"));
        server->xrandr(words("--addmode DUMMY1 turned"));
    }
    static void TearDownTestSuite() { server.reset(); }

    void SetUp() override {
        if (!server->isRunning())
            GTEST_SKIP() << "Xorg or its dummy driver is not installed, or Xorg may not run here";
        unplug();
        move(aside);
    }

    static QStringList words(const char *line) { return QString::fromLatin1(line).split(u' '); }
    static void plugIn(const char *mode, const char *place) {
        server->xrandr({QStringLiteral("--output"), QStringLiteral("DUMMY1"), QStringLiteral("--mode"),
                        QString::fromLatin1(mode), QString::fromLatin1(place), QStringLiteral("DUMMY0")});
    }
    static void unplug() {
        server->xrandr(words("--output DUMMY0 --primary --pos 0x0 --output DUMMY1 --off"));
    }

    void start(const char *displayPreference) {
        tembra.setSettings({{QStringLiteral("displayPreference"), QString::fromLatin1(displayPreference)}});
        tembra.start();
    }
    void move(QPoint to) {
        tembra.tool(QStringLiteral("xdotool"),
                    {QStringLiteral("mousemove"), QString::number(to.x()), QString::number(to.y())});
    }
    // Through every pixel row between, as a hand does.
    void sweep(int x, int fromY, int toY) {
        QStringList steps;
        for (int y = fromY; y != toY; y += fromY < toY ? 1 : -1)
            steps += {QStringLiteral("mousemove"), QString::number(x), QString::number(y)};
        tembra.tool(QStringLiteral("xdotool"), steps);
    }
    // Whether only the desktop itself is under the pointer.
    bool isNothingUnderThePointer() {
        const auto root = tembra.tool(QStringLiteral("xwininfo"), words("-root -int"));
        const auto under = tembra.tool(QStringLiteral("xdotool"), words("getmouselocation --shell"));
        const QString window = under.output.section(QStringLiteral("WINDOW="), 1).trimmed();
        return root.output.contains(QStringLiteral("Window id: %1 ").arg(window));
    }

    // Where the open shelf has come to rest.
    bool comesToRest(const char *display, const QRect &frame) {
        return tembra.waitFor([&](const QJsonObject &status) {
            const QJsonObject shelf = status[u"shelf"].toObject();
            return shelf[u"expanded"].toBool() && shelf[u"display"].toString() == QLatin1String(display) &&
                   shelf[u"frame"].toArray() ==
                       QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()};
        });
    }
    bool closes() {
        return tembra.waitFor(
            [](const QJsonObject &status) { return !status[u"shelf"][u"expanded"].toBool(); });
    }
    std::string found() {
        return QJsonDocument(tembra.status()[u"shelf"].toObject()).toJson().toStdString() +
               tembra.log().toStdString();
    }

    static inline std::unique_ptr<DummyServer> server;
    static constexpr QRect onMain{140, 0, 744, 256};
    // Created on the server that is there by then.
    TembraProcess tembra;
};

} // namespace

TEST_F(ShelfOnDisplays, itOpensAtTheTopOfEachDisplayWhereverThatStands) {
    start("all");
    struct Case {
        const char *name;
        const char *mode;
        const char *place;
        QPoint notch;
        QRect frame;
        QPoint mainOrigin;
    };
    for (const Case &c : {
             Case{"beside", "wide", "--right-of", {1664, 0}, {1292, 0, 744, 256}, {0, 0}},
             Case{"above", "wide", "--above", {640, 0}, {268, 0, 744, 256}, {0, 800}},
             Case{"below", "wide", "--below", {640, 768}, {268, 768, 744, 256}, {0, 0}},
             Case{"turned, and narrower than the shelf",
                  "turned",
                  "--left-of",
                  {360, 0},
                  {14, 0, 692, 256},
                  {720, 0}},
         }) {
        plugIn(c.mode, c.place);
        move(c.notch);
        EXPECT_TRUE(comesToRest("DUMMY1", c.frame)) << c.name << found();
        // Straight from one notch to the other.
        move(c.mainOrigin + QPoint(512, 0));
        EXPECT_TRUE(comesToRest("DUMMY0", onMain.translated(c.mainOrigin))) << c.name << found();
        move(c.mainOrigin + aside);
        EXPECT_TRUE(closes()) << c.name;
        unplug();
        move(aside);
    }
}

TEST_F(ShelfOnDisplays, aPointerThatCrossesIntoTheLowerDisplayOpensItThereAndMayGoOn) {
    plugIn("wide", "--above");
    start("all");
    for (const int beyond : {1300, 700}) {
        sweep(512, 760, 805);
        EXPECT_TRUE(comesToRest("DUMMY0", onMain.translated(0, 800))) << beyond << found();
        sweep(512, 805, beyond);
        EXPECT_TRUE(closes()) << beyond << found();
    }
    sweep(512, 700, 805);
    EXPECT_TRUE(comesToRest("DUMMY0", onMain.translated(0, 800))) << found();
    tembra.command({QStringLiteral("close")});
    EXPECT_TRUE(closes());
    sweep(512, 805, 700);
    sweep(512, 700, 805);
    EXPECT_TRUE(comesToRest("DUMMY0", onMain.translated(0, 800)))
        << "a pointer that left and came back: " << found();
}

TEST_F(ShelfOnDisplays, anOpenShelfMovesFromADisplayThatGoes) {
    plugIn("wide", "--right-of");
    start("all");
    move({1664, 0});
    ASSERT_TRUE(comesToRest("DUMMY1", {1292, 0, 744, 256})) << found();
    unplug();
    EXPECT_TRUE(comesToRest("DUMMY0", onMain)) << found();
    move({512, 100});
    move({512, 700});
    EXPECT_TRUE(closes()) << "the pointer has followed and left: " << found();
}

TEST_F(ShelfOnDisplays, theKeyboardMovesWithAShelfOpenedByHand) {
    plugIn("wide", "--right-of");
    start("all");
    move({1100, 700});
    tembra.command({QStringLiteral("open")});
    ASSERT_TRUE(comesToRest("DUMMY1", {1292, 0, 744, 256})) << found();
    unplug();
    ASSERT_TRUE(comesToRest("DUMMY0", onMain)) << found();
    tembra.tool(QStringLiteral("xdotool"), words("key Escape"));
    EXPECT_TRUE(closes()) << found();
}

TEST_F(ShelfOnDisplays, theMainDisplayAloneHasItWhenThatIsPreferred) {
    plugIn("wide", "--right-of");
    start("main");
    move({512, 0});
    ASSERT_TRUE(comesToRest("DUMMY0", onMain)) << found();
    EXPECT_FALSE(isNothingUnderThePointer());
    move({1664, 0});
    EXPECT_TRUE(closes()) << found();
    EXPECT_TRUE(isNothingUnderThePointer());
    tembra.command({QStringLiteral("open")});
    EXPECT_TRUE(comesToRest("DUMMY0", onMain)) << "wherever the pointer is: " << found();
    server->xrandr(words("--output DUMMY1 --primary"));
    EXPECT_TRUE(comesToRest("DUMMY1", {1292, 0, 744, 256}))
        << "the other one is the main one now: " << found();
}
