#pragma once

#include "platform/linux/desktop/X11Connection.h"

namespace tembra {

// Which virtual desktop is shown and whether something composes the windows, as the window manager and the
// compositor tell other programs. Main thread.
class X11Session {
public:
    // Tells of changes through these, for as long as it lives.
    X11Session(std::shared_ptr<X11Connection> connection, std::function<void()> onDesktopChange,
               std::function<void()> onCompositingChange);

    [[nodiscard]] static bool isComposited(const X11Connection &connection);

private:
    [[nodiscard]] std::optional<std::uint32_t> currentDesktop() const;
    void checkDesktop();
    void checkCompositing();

    const std::shared_ptr<X11Connection> m_connection;
    const std::function<void()> m_onDesktopChange;
    const std::function<void()> m_onCompositingChange;
    const xcb_atom_t m_desktopAtom;
    std::optional<std::uint32_t> m_desktop;
    bool m_isComposited;
    std::unique_ptr<X11Connection::Subscription> m_desktopWatch;
    std::unique_ptr<X11Connection::Subscription> m_compositorWatch;
};

} // namespace tembra
