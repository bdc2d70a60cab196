#pragma once

#include "platform/HotKeys.h"

#include <QDBusPendingCall>

#include <memory>

namespace tembra {

// Keys that the desktop portal binds (org.freedesktop.portal.GlobalShortcuts), as Wayland compositors have
// it: the desktop may ask the user, who may choose another key or none. So what becomes of a key is known
// later.
class PortalHotKeys final : public HotKeys {
public:
    // Tells the portal which program this is and asks whether it binds keys, without waiting for the answer.
    PortalHotKeys();

    // Waits for that answer, for a moment.
    [[nodiscard]] bool areAvailable() const override;
    [[nodiscard]] Result<std::unique_ptr<Registration>> registerHotKey(const HotKey &key,
                                                                       Callbacks callbacks) override;
    [[nodiscard]] std::optional<std::uint32_t> virtualKeyCode(const QKeyEvent &event) const override;

private:
    mutable QDBusPendingCall m_version;
};

} // namespace tembra
