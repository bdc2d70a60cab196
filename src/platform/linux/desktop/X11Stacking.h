#pragma once

#include "platform/linux/desktop/X11Connection.h"

#include <QPointer>

#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace tembra {

// Keeps the program's zones and panels above the windows that a window manager looks after: whenever it
// restacks them, ours are raised again, zones below panels below the program's own menus. Main thread.
class X11Stacking {
public:
    explicit X11Stacking(std::shared_ptr<X11Connection> connection);

    void addZone(xcb_window_t zone);
    void removeZone(xcb_window_t zone);
    void addPanel(QWidget &panel);
    void raiseAll();

private:
    void raiseZones();
    void raisePanels();

    const std::shared_ptr<X11Connection> m_connection;
    std::vector<xcb_window_t> m_zones;
    std::vector<QPointer<QWidget>> m_panels;
    const std::unique_ptr<X11Connection::Subscription> m_restacked;
};

} // namespace tembra
