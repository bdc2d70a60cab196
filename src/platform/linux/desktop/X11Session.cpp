#include "platform/linux/desktop/X11Session.h"

#include <QByteArray>

namespace tembra {

namespace {

// Whoever composes the windows of a screen owns its selection.
xcb_atom_t compositorSelection(const X11Connection &connection) {
    return connection.atom("_NET_WM_CM_S" + QByteArray::number(connection.screenNumber()));
}

} // namespace

X11Session::X11Session(std::shared_ptr<X11Connection> connection, std::function<void()> onDesktopChange,
                       std::function<void()> onCompositingChange)
    : m_connection(std::move(connection)),
      m_onDesktopChange(std::move(onDesktopChange)),
      m_onCompositingChange(std::move(onCompositingChange)),
      m_desktopAtom(m_connection->atom(QByteArrayLiteral("_NET_CURRENT_DESKTOP"))),
      m_desktop(currentDesktop()),
      m_isComposited(isComposited(*m_connection)),
      m_desktopWatch(m_connection->watchRootProperty(m_desktopAtom, [this] { checkDesktop(); })),
      m_compositorWatch(m_connection->watchSelection(compositorSelection(*m_connection),
                                                     [this](xcb_window_t) { checkCompositing(); })) {}

bool X11Session::isComposited(const X11Connection &connection) {
    return connection.selectionOwner(compositorSelection(connection)) != XCB_WINDOW_NONE;
}

std::optional<std::uint32_t> X11Session::currentDesktop() const {
    return m_connection->rootValue(m_desktopAtom, XCB_ATOM_CARDINAL);
}

// A window manager that starts writes the property anew, and one that ends may take it away.
void X11Session::checkDesktop() {
    const auto desktop = currentDesktop();
    if (!desktop || desktop == m_desktop)
        return;
    const bool wasKnown = std::exchange(m_desktop, desktop).has_value();
    if (wasKnown)
        m_onDesktopChange();
}

void X11Session::checkCompositing() {
    const bool isNowComposited = isComposited(*m_connection);
    if (std::exchange(m_isComposited, isNowComposited) != isNowComposited)
        m_onCompositingChange();
}

} // namespace tembra
