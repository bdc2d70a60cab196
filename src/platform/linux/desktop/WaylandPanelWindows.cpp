#include "platform/linux/desktop/WaylandPanelWindows.h"

#include "platform/linux/desktop/QtPanelWindows.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace tembra {

WaylandPanelWindows::WaylandPanelWindows(std::shared_ptr<WaylandLayers> layers)
    : m_layers(std::move(layers)) {
    // Who has got the keyboard keeps it only until the user clicks elsewhere.
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &m_context, [this](QWindow *window) {
        if (window && window == m_taker)
            m_layers->setKeyboard(*window, layer_shell::Keyboard::onDemand);
    });
}

void WaylandPanelWindows::prepare(QWidget &panel) {
    QtPanelWindows::applyPanelFlags(panel);
    panel.winId();
}

bool WaylandPanelWindows::isShown(const QWidget &panel) const {
    return panel.windowHandle() && m_layers->isReady(*panel.windowHandle());
}

void WaylandPanelWindows::setInputRegion(QWidget &panel, const QRegion &region) {
    m_layers->setInputRegion(*panel.windowHandle(), region);
}

void WaylandPanelWindows::takeKeyboardFocus(QWidget &panel) {
    m_taker = panel.windowHandle();
    if (QGuiApplication::focusWindow() != m_taker)
        m_layers->setKeyboard(*m_taker, layer_shell::Keyboard::exclusive);
}

void WaylandPanelWindows::returnKeyboardFocus(QWidget &panel) {
    m_taker.clear();
    m_layers->setKeyboard(*panel.windowHandle(), layer_shell::Keyboard::none);
}

} // namespace tembra
