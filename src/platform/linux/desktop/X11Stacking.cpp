#include "platform/linux/desktop/X11Stacking.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace tembra {

X11Stacking::X11Stacking(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_restacked(m_connection->watchRootProperty(
          m_connection->atom(QByteArrayLiteral("_NET_CLIENT_LIST_STACKING")), [this] { raiseAll(); })) {}

void X11Stacking::addZone(xcb_window_t zone) {
    m_zones.push_back(zone);
    raiseAll();
}

void X11Stacking::removeZone(xcb_window_t zone) {
    std::erase(m_zones, zone);
}

void X11Stacking::addPanel(QWidget &panel) {
    std::erase(m_panels, nullptr);
    m_panels.emplace_back(&panel);
}

void X11Stacking::raiseAll() {
    raiseZones();
    raisePanels();
    xcb_flush(m_connection->xcb());
}

void X11Stacking::raiseZones() {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    for (const xcb_window_t zone : m_zones)
        xcb_configure_window(m_connection->xcb(), zone, XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void X11Stacking::raisePanels() {
    bool raised = false;
    for (const auto &panel : m_panels) {
        if (!panel || !panel->isVisible() || !panel->windowHandle())
            continue;
        panel->windowHandle()->raise();
        raised = true;
    }
    if (!raised)
        return;
    // A menu of the panel's must not end up below it.
    for (QWindow *const window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && (window->type() == Qt::Popup || window->type() == Qt::ToolTip))
            window->raise();
    }
}

} // namespace tembra
