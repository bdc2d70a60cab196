#include "TembraProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

using namespace tembra;

namespace {

// Another program that has Super + Shift + W for itself.
class KeyHolder {
public:
    KeyHolder() {
        const auto *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get())).data;
        constexpr std::uint16_t superAndShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;
        constexpr xcb_keycode_t keyW = 25;
        xcb_grab_key(m_xcb.get(), 0, screen->root, superAndShift, keyW, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        const auto focus = xcb_get_input_focus(m_xcb.get());
        std::free(xcb_get_input_focus_reply(m_xcb.get(), focus, nullptr));
    }

private:
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> m_xcb{xcb_connect(nullptr, nullptr),
                                                                                xcb_disconnect};
};

class Shortcut : public testing::Test {
protected:
    void start() {
        QDir().mkpath(QFileInfo(tembra.settingsFile()).path());
        QFile file(tembra.settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"({"shortcutEnabled": true})");
        file.close();
        tembra.start();
    }
    void press() {
        tembra.tool(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("super+shift+w")});
    }
    bool becomes(bool expanded) {
        return tembra.waitFor(
            [=](const QJsonObject &status) { return status[u"shelf"][u"expanded"].toBool() == expanded; });
    }
    std::string found() {
        return QJsonDocument(tembra.status()).toJson().toStdString() + tembra.log().toStdString();
    }

    TembraProcess tembra;
};

} // namespace

TEST_F(Shortcut, itOpensTheShelfFromWhereverTheKeyboardIsAndClosesIt) {
    start();
    EXPECT_EQ(tembra.status()[u"shortcut"][u"title"].toString(), QStringLiteral("⇧⌘W"));
    EXPECT_TRUE(tembra.status()[u"shortcut"][u"error"].isNull()) << found();
    for (const bool expanded : {true, false, true, false}) {
        press();
        EXPECT_TRUE(becomes(expanded)) << found();
    }
}

TEST_F(Shortcut, whatAnotherProgramHasIsSaidAndLeftToIt) {
    const KeyHolder other;
    start();
    EXPECT_EQ(tembra.status()[u"shortcut"][u"error"].toString(),
              QStringLiteral("This shortcut is unavailable. Choose another combination."))
        << found();
    press();
    tembra.command({QStringLiteral("toggle")});
    EXPECT_TRUE(becomes(true)) << "the press did not open it before: " << found();
}

TEST_F(Shortcut, aStartInTheBackgroundShowsNothingOfTheRunningOne) {
    start();
    EXPECT_EQ(tembra.command({QStringLiteral("--background")}).exitStatus, 0);
    EXPECT_FALSE(tembra.status()[u"shelf"][u"expanded"].toBool());
}
