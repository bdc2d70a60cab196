#pragma once

#include "platform/ScreenGeometry.h"

#include <functional>
#include <memory>

namespace tembra {

// Invisible rectangles at the edge of a screen that tell when the pointer comes, goes or presses the left
// button in them. They stay above other programs' windows and below this program's panels, and cost nothing
// while the pointer does not cross their edge. Main thread, screen points.
class HotZones {
public:
    struct Callbacks {
        std::function<void()> onEnter;
        std::function<void()> onLeave;
        std::function<void()> onPress;
    };

    class Zone {
    public:
        virtual ~Zone() = default;
        virtual void setRect(const ScreenRect &rect) = 0;
    };

    virtual ~HotZones() = default;
    // Dropping the handle removes the zone, also from within a callback.
    [[nodiscard]] virtual std::unique_ptr<Zone> add(const ScreenRect &rect, Callbacks callbacks) = 0;
};

} // namespace tembra
