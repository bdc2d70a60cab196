#pragma once

#include "platform/linux/desktop/X11Connection.h"

#include <QPointer>

#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace tembra {

// Keeps the program's zones and panels above the windows that a window manager looks after: whenever it
// restacks them, ours are put on top again, zones below panels below the program's own menus. Main thread.
class X11Stacking final {
public:
    explicit X11Stacking(std::shared_ptr<X11Connection> connection);

    void addZone(xcb_window_t zone);
    void removeZone(xcb_window_t zone);
    void addPanel(QWidget &panel);
    void restack();

private:
    // All windows of the screen, the topmost first.
    [[nodiscard]] std::vector<xcb_window_t> stackedWindows() const;
    // Which of ours belong on top of which, the topmost first; those of one kind in the order they have.
    [[nodiscard]] std::vector<xcb_window_t> wantedOrder(const std::vector<xcb_window_t> &stacked) const;
    [[nodiscard]] std::vector<xcb_window_t> visiblePanels() const;

    const std::shared_ptr<X11Connection> m_connection;
    std::vector<xcb_window_t> m_zones;
    std::vector<QPointer<QWidget>> m_panels;
    const std::unique_ptr<X11Connection::Subscription> m_restacked;
};

} // namespace tembra
