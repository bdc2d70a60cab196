#include "platform/linux/desktop/X11HotKeys.h"

#include "ForeignProgram.h"
#include "platform/linux/desktop/KeyPositions.h"
#include "support/EventLoop.h"

#include <QKeyEvent>
#include <QProcess>
#include <QWidget>

#include <gtest/gtest.h>

#include <vector>

using namespace tembra;

namespace {

// Keycodes, whatever the layout.
enum Key : std::uint8_t {
    keyW = 25,
    keyZ = 52,
    keySuper = 133,
    keyShift = 50,
    keyCtrl = 37,
    keyAlt = 64,
    capsLock = 66,
    numLock = 77,
};

constexpr std::uint16_t superAndShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;

class X11HotKeysTest : public testing::Test {
protected:
    ~X11HotKeysTest() override { run("setxkbmap", {QStringLiteral("us")}); }

    static void run(const char *program, const QStringList &arguments) {
        EXPECT_EQ(QProcess::execute(QString::fromLatin1(program), arguments), 0) << program;
    }
    [[nodiscard]] Result<std::unique_ptr<HotKeys::Registration>> take(const HotKeys::HotKey &key,
                                                                      int &presses) {
        return m_hotKeys.registerHotKey(
            key, {.onPressed = [&presses] { ++presses; }, .onLost = [this](const Error &) { ++m_losses; }});
    }
    void hold(const std::vector<Key> &keys) {
        for (const Key key : keys)
            m_foreign.holdKey(key);
    }
    void press(const std::vector<Key> &keys) {
        hold(keys);
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)
            m_foreign.releaseKey(*key);
    }

    const HotKeys::HotKey m_standard{13, 0x0300, QStringLiteral("W")};
    const std::vector<Key> m_standardKeys{keySuper, keyShift, keyW};
    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    X11HotKeys m_hotKeys{m_connection};
    ForeignProgram m_foreign;
    int m_presses = 0;
    int m_losses = 0;
};

} // namespace

TEST_F(X11HotKeysTest, everyModifierReachesItAndNoOtherCombinationDoes) {
    int all = 0;
    const auto standard = take(m_standard, m_presses);
    const auto other = take({6, 0x1800, QStringLiteral("Z")}, all);
    ASSERT_TRUE(standard && other);
    press({keySuper, keyW});
    press({keySuper, keyShift, keyCtrl, keyW});
    press({keyCtrl, keyZ});
    press({keyCtrl, keyAlt, keyZ});
    press(m_standardKeys);
    EXPECT_TRUE(eventually([&] { return m_presses == 1 && all == 1; })) << m_presses << all;
}

TEST_F(X11HotKeysTest, itWorksWithAnyLockOn) {
    const auto registration = take(m_standard, m_presses);
    ASSERT_TRUE(registration);
    int expected = 0;
    for (const std::vector<Key> &locks :
         {std::vector<Key>{numLock}, std::vector<Key>{capsLock}, std::vector<Key>{numLock, capsLock}}) {
        for (const Key lock : locks)
            press({lock});
        press(m_standardKeys);
        for (const Key lock : locks)
            press({lock});
        ++expected;
        EXPECT_TRUE(eventually([&] { return m_presses == expected; })) << expected;
    }
}

TEST_F(X11HotKeysTest, whatAnotherProgramHasIsTakenAndNothingOfItIsKept) {
    ASSERT_TRUE(m_foreign.grabKey(keyW, superAndShift | XCB_MOD_MASK_2));
    const auto refused = take(m_standard, m_presses);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().code, HotKeys::taken);
    EXPECT_TRUE(m_foreign.grabKey(keyW, superAndShift)) << "with Num Lock off it was free";
    m_foreign.ungrabKey(keyW, superAndShift);
    m_foreign.ungrabKey(keyW, superAndShift | XCB_MOD_MASK_2);

    auto registration = take(m_standard, m_presses);
    ASSERT_TRUE(registration);
    EXPECT_FALSE(m_foreign.grabKey(keyW, superAndShift));
    registration->reset();
    EXPECT_TRUE(m_foreign.grabKey(keyW, superAndShift)) << "dropped, it is free again";
    m_foreign.ungrabKey(keyW, superAndShift);
}

TEST_F(X11HotKeysTest, aLongPressIsToldOnce) {
    run("xset", {QStringLiteral("r"), QStringLiteral("rate"), QStringLiteral("60"), QStringLiteral("100")});
    const auto registration = take(m_standard, m_presses);
    ASSERT_TRUE(registration);
    int events = 0;
    const auto watch = m_connection->subscribe([&events](const xcb_generic_event_t &event) {
        events += event.response_type == XCB_KEY_PRESS ? 1 : 0;
    });
    hold(m_standardKeys);
    EXPECT_TRUE(eventually([&] { return events >= 5; })) << "the key repeats itself";
    EXPECT_EQ(m_presses, 1);
    for (const Key key : m_standardKeys)
        m_foreign.releaseKey(key);
    press(m_standardKeys);
    EXPECT_TRUE(eventually([&] { return m_presses == 2; }));
}

TEST_F(X11HotKeysTest, aKeyIsItsPlaceInEveryLayout) {
    const auto registration = take({6, 0x0900, QStringLiteral("Z")}, m_presses);
    ASSERT_TRUE(registration);
    int expected = 0;
    for (const char *layout : {"de", "ru", "us,fr"}) {
        run("setxkbmap", {QString::fromLatin1(layout)});
        press({keySuper, keyAlt, keyZ});
        ++expected;
        EXPECT_TRUE(eventually([&] { return m_presses == expected; })) << layout;
    }
}

TEST_F(X11HotKeysTest, itFollowsAModifierToItsNewBit) {
    const auto registration = take(m_standard, m_presses);
    ASSERT_TRUE(registration);
    run("xmodmap",
        {QStringLiteral("-e"), QStringLiteral("clear mod4"), QStringLiteral("-e"),
         QStringLiteral("clear mod3"), QStringLiteral("-e"), QStringLiteral("add mod3 = Super_L")});
    EXPECT_TRUE(eventually([this] { return m_foreign.grabKey(keyW, superAndShift); }))
        << "the old one is free";
    m_foreign.ungrabKey(keyW, superAndShift);
    press(m_standardKeys);
    EXPECT_TRUE(eventually([this] { return m_presses == 1; }));

    // Where another program has it by then it is lost.
    ASSERT_TRUE(m_foreign.grabKey(keyW, superAndShift));
    run("setxkbmap", {QStringLiteral("us")});
    EXPECT_TRUE(eventually([this] { return m_losses == 1; }));
    m_foreign.ungrabKey(keyW, superAndShift);
}

TEST_F(X11HotKeysTest, twoRegistrationsOfOneKeyDoNotEndEachOther) {
    int others = 0;
    auto first = take(m_standard, m_presses);
    const auto second = take(m_standard, others);
    ASSERT_TRUE(first && second);
    press(m_standardKeys);
    EXPECT_TRUE(eventually([&] { return m_presses == 1 && others == 1; }));
    first->reset();
    press(m_standardKeys);
    EXPECT_TRUE(eventually([&] { return others == 2; }));
}

TEST_F(X11HotKeysTest, theKeyThatIsPressedIsKnownByItsPlace) {
    class Window final : public QWidget {
    public:
        std::vector<std::optional<std::uint32_t>> codes;

    protected:
        void keyPressEvent(QKeyEvent *event) override { codes.push_back(virtualKeyOf(*event)); }
    };
    Window window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(eventually([&] { return window.isActiveWindow(); }));
    run("setxkbmap", {QStringLiteral("de")});
    press({keyShift});
    press({keyZ});
    EXPECT_TRUE(eventually([&] { return window.codes.size() == 2; }));
    EXPECT_EQ(window.codes, (std::vector<std::optional<std::uint32_t>>{std::nullopt, 6}));
}

TEST(KeyPositions, eachPlaceHasOneKeyInBothDirections) {
    int count = 0;
    for (std::uint32_t code = 0; code < 128; ++code) {
        const auto keycode = keycodeOf(code);
        if (!keycode)
            continue;
        ++count;
        EXPECT_EQ(virtualKeyOf(*keycode), code);
    }
    EXPECT_GT(count, 100);
    EXPECT_EQ(keycodeOf(13), keyW);
    EXPECT_EQ(keycodeOf(55), std::nullopt) << "a modifier";
}
