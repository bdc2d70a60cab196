#include "platform/linux/desktop/X11Stacking.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <array>

namespace tembra {

namespace {

std::vector<xcb_window_t> visibleMenus() {
    std::vector<xcb_window_t> menus;
    const auto windows = QGuiApplication::topLevelWindows();
    for (QWindow *const window : windows) {
        const bool isMenu = window->type() == Qt::Popup || window->type() == Qt::ToolTip;
        if (isMenu && window->isVisible() && window->handle())
            menus.push_back(static_cast<xcb_window_t>(window->winId()));
    }
    return menus;
}

} // namespace

X11Stacking::X11Stacking(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_restacked(m_connection->watchRootProperty(
          m_connection->atom(QByteArrayLiteral("_NET_CLIENT_LIST_STACKING")), [this] { restack(); })) {}

void X11Stacking::addZone(xcb_window_t zone) {
    m_zones.push_back(zone);
    restack();
}

void X11Stacking::removeZone(xcb_window_t zone) {
    std::erase(m_zones, zone);
}

// Qt itself raises a tool window whenever it is shown.
void X11Stacking::addPanel(QWidget &panel) {
    std::erase(m_panels, nullptr);
    m_panels.emplace_back(&panel);
}

// Each window goes below the one before it instead of all being raised one after the other: on the way, a
// zone above a panel would tell of a pointer that never moved.
void X11Stacking::restack() {
    const std::vector<xcb_window_t> stacked = stackedWindows();
    const std::vector<xcb_window_t> wanted = wantedOrder(stacked);
    if (std::equal(wanted.begin(), wanted.end(), stacked.begin()))
        return;
    xcb_connection_t *const xcb = m_connection->xcb();
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(xcb, wanted.front(), XCB_CONFIG_WINDOW_STACK_MODE, &above);
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        const std::array<std::uint32_t, 2> belowPrevious{wanted[i - 1], XCB_STACK_MODE_BELOW};
        xcb_configure_window(xcb, wanted[i], XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
                             belowPrevious.data());
    }
    xcb_flush(xcb);
}

std::vector<xcb_window_t> X11Stacking::stackedWindows() const {
    xcb_connection_t *const xcb = m_connection->xcb();
    const X11Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(xcb, xcb_query_tree(xcb, m_connection->root()), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *const children = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> windows(children, children + xcb_query_tree_children_length(tree.get()));
    std::ranges::reverse(windows);
    return windows;
}

std::vector<xcb_window_t> X11Stacking::wantedOrder(const std::vector<xcb_window_t> &stacked) const {
    std::vector<xcb_window_t> order;
    for (const auto &kind : {visibleMenus(), visiblePanels(), m_zones}) {
        std::ranges::copy_if(stacked, std::back_inserter(order),
                             [&kind](xcb_window_t window) { return std::ranges::count(kind, window) > 0; });
    }
    return order;
}

std::vector<xcb_window_t> X11Stacking::visiblePanels() const {
    std::vector<xcb_window_t> windows;
    for (const auto &panel : m_panels) {
        if (panel && panel->isVisible())
            windows.push_back(static_cast<xcb_window_t>(panel->internalWinId()));
    }
    return windows;
}

} // namespace tembra
