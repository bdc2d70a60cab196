#include "platform/linux/desktop/X11PanelWindows.h"

#include "ForeignProgram.h"
#include "support/EventLoop.h"

#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

class Panel final : public QWidget {
public:
    Panel() {
        setGeometry(100, 0, 400, 100);
        m_field.setGeometry(0, 60, 400, 40);
    }

    [[nodiscard]] xcb_window_t window() const { return static_cast<xcb_window_t>(internalWinId()); }
    [[nodiscard]] int pressCount() const { return m_presses; }
    [[nodiscard]] QLineEdit &field() { return m_field; }

protected:
    void mousePressEvent(QMouseEvent *) override { ++m_presses; }

private:
    int m_presses = 0;
    QLineEdit m_field{this};
};

class X11PanelWindowsTest : public testing::Test {
protected:
    X11PanelWindowsTest() { m_panels.prepare(m_panel); }

    const std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    X11PanelWindows m_panels{m_connection, std::make_shared<X11Stacking>(m_connection)};
    Panel m_panel;
    ForeignProgram m_foreign;
};

} // namespace

TEST_F(X11PanelWindowsTest, aPanelStaysAboveWindowsRaisedAfterIt) {
    m_panel.show();
    const xcb_window_t first = m_foreign.openWindow({0, 0, 600, 400});
    m_foreign.openWindow({0, 0, 600, 400});
    const xcb_window_t menu = m_foreign.openMenu({0, 0, 600, 400});
    ASSERT_TRUE(m_foreign.isAbove(menu, m_panel.window()));
    m_foreign.activate(first);
    EXPECT_TRUE(eventually([this, menu] { return m_foreign.isAbove(m_panel.window(), menu); }));
    EXPECT_TRUE(m_foreign.isAbove(m_panel.window(), first));
}

TEST_F(X11PanelWindowsTest, aPanelShownAgainIsAboveEverything) {
    m_panel.show();
    m_panel.hide();
    const xcb_window_t menu = m_foreign.openMenu({0, 0, 600, 400});
    ASSERT_TRUE(m_foreign.isAbove(menu, m_panel.window()));
    m_panel.show();
    EXPECT_TRUE(eventually([this, menu] { return m_foreign.isAbove(m_panel.window(), menu); }));
}

TEST_F(X11PanelWindowsTest, aMenuOfThePanelStaysAboveIt) {
    m_panel.show();
    const xcb_window_t first = m_foreign.openWindow({0, 200, 600, 400});
    const xcb_window_t second = m_foreign.openWindow({0, 200, 600, 400});
    QMenu menu(&m_panel);
    menu.addAction(QStringLiteral("Open"));
    for (const xcb_window_t raised : {first, second}) {
        menu.popup({150, 20});
        const auto window = static_cast<xcb_window_t>(menu.winId());
        EXPECT_TRUE(eventually([&] { return m_foreign.isAbove(window, m_panel.window()); }));
        const xcb_window_t cover = m_foreign.openMenu({0, 0, 600, 400});
        m_foreign.activate(raised);
        EXPECT_TRUE(eventually([&] { return m_foreign.isAbove(m_panel.window(), cover); }));
        EXPECT_TRUE(m_foreign.isAbove(window, m_panel.window()));
        menu.hide();
    }
}

TEST_F(X11PanelWindowsTest, theKeyboardIsTakenOnlyWhenAskedForAndGivenBack) {
    const xcb_window_t window = m_foreign.openWindow({0, 200, 600, 400});
    m_panel.show();
    m_foreign.click({200, 20});
    ASSERT_TRUE(eventually([this] { return m_panel.pressCount() == 1; }));
    EXPECT_EQ(m_foreign.focusedWindow(), window);

    m_panels.takeKeyboardFocus(m_panel);
    m_panel.field().setFocus();
    ASSERT_TRUE(eventually([this] { return m_panel.isActiveWindow() && m_panel.field().hasFocus(); }));
    m_foreign.typeKey('k');
    EXPECT_TRUE(eventually([this] { return m_panel.field().text() == QStringLiteral("k"); }));

    m_panels.returnKeyboardFocus(m_panel);
    EXPECT_TRUE(eventually([this] { return !m_panel.isActiveWindow(); }));
    EXPECT_EQ(m_foreign.focusedWindow(), window);
}

TEST_F(X11PanelWindowsTest, whoeverHadTheKeyboardGetsItBack) {
    m_foreign.openWindow({0, 200, 600, 400});
    m_panel.show();
    const xcb_window_t launcher = m_foreign.openMenu({700, 200, 100, 100});
    m_foreign.takeKeyboard(launcher);
    m_panels.takeKeyboardFocus(m_panel);
    ASSERT_TRUE(eventually([this] { return m_panel.isActiveWindow(); }));
    m_panels.returnKeyboardFocus(m_panel);
    EXPECT_EQ(m_foreign.focusedWindow(), launcher);
}

TEST_F(X11PanelWindowsTest, theKeyboardIsNotTakenBackFromWhomTheUserGaveIt) {
    m_foreign.openWindow({0, 200, 600, 400});
    m_panel.show();
    m_panels.takeKeyboardFocus(m_panel);
    ASSERT_TRUE(eventually([this] { return m_panel.isActiveWindow(); }));
    const xcb_window_t chosen = m_foreign.openWindow({0, 200, 600, 400});
    m_panels.returnKeyboardFocus(m_panel);
    EXPECT_EQ(m_foreign.focusedWindow(), chosen);
}

TEST_F(X11PanelWindowsTest, clicksOutsideTheInputRegionReachWhatLiesBelow) {
    m_foreign.openWindow({0, 0, 600, 400});
    m_panel.show();
    m_panels.setInputRegion(m_panel, QRegion(0, 0, 50, 30) + QRegion(200, 0, 50, 30));
    m_foreign.click({200, 20});
    EXPECT_TRUE(eventually([this] { return m_foreign.pressCount() == 1; }));
    m_foreign.click({349, 29});
    EXPECT_TRUE(eventually([this] { return m_panel.pressCount() == 1; }));
    m_panels.setInputRegion(m_panel, {});
    m_foreign.click({349, 29});
    EXPECT_TRUE(eventually([this] { return m_foreign.pressCount() == 2; }));
    EXPECT_EQ(m_panel.pressCount(), 1);
}
