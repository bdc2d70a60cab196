#pragma once

#include "platform/HotZones.h"

namespace tembra {

// Hot zones as small transparent windows, for windowing systems that we do not speak to ourselves.
class QtHotZones final : public HotZones {
public:
    [[nodiscard]] std::unique_ptr<Zone> add(const ScreenRect &rect, Callbacks callbacks) override;
};

} // namespace tembra
