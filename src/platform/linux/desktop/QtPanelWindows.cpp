#include "platform/linux/desktop/QtPanelWindows.h"

#include <QWidget>
#include <QWindow>

namespace tembra {

void QtPanelWindows::applyPanelFlags(QWidget &panel) {
    panel.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                         Qt::X11BypassWindowManagerHint);
    panel.setAttribute(Qt::WA_TranslucentBackground);
    panel.setAttribute(Qt::WA_ShowWithoutActivating);
    // The panel is not one of the windows whose closing ends the program.
    panel.setAttribute(Qt::WA_QuitOnClose, false);
}

void QtPanelWindows::prepare(QWidget &panel) {
    applyPanelFlags(panel);
    panel.winId();
}

bool QtPanelWindows::isExposed(const QWidget &panel) {
    return panel.windowHandle() && panel.windowHandle()->isExposed();
}

bool QtPanelWindows::isShown(const QWidget &panel) const {
    return isExposed(panel);
}

void QtPanelWindows::setInputRegion(QWidget &, const QRegion &) {}

void QtPanelWindows::takeKeyboardFocus(QWidget &panel) {
    panel.activateWindow();
}

void QtPanelWindows::returnKeyboardFocus(QWidget &) {}

} // namespace tembra
