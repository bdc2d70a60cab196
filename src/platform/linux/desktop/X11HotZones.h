#pragma once

#include "platform/HotZones.h"
#include "platform/linux/desktop/X11Connection.h"
#include "platform/linux/desktop/X11Stacking.h"

namespace tembra {

// Hot zones as input-only windows, which have no pixels and which no window manager looks after.
class X11HotZones final : public HotZones {
public:
    X11HotZones(std::shared_ptr<X11Connection> connection, std::shared_ptr<X11Stacking> stacking);

    [[nodiscard]] std::unique_ptr<Zone> add(const ScreenRect &rect, Callbacks callbacks) override;

private:
    const std::shared_ptr<X11Connection> m_connection;
    const std::shared_ptr<X11Stacking> m_stacking;
};

} // namespace tembra
