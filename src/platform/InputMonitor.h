#pragma once

#include "platform/ScreenGeometry.h"

#include <functional>
#include <memory>

namespace tembra {

// Presses and releases of the mouse anywhere on the screen, also over other programs, and where the pointer
// is. Main thread. Where the platform tells nothing about other programs' input, only this program's own
// events arrive.
class InputMonitor {
public:
    // `moved`: it may have left a window that could not tell.
    enum class Kind { leftDown, leftUp, rightDown, leftDragged, moved };

    struct Event {
        Kind kind;
        ScreenPoint point;
        // The event goes to a window of this program.
        bool local = false;
    };

    class Observation {
    public:
        virtual ~Observation() = default;
    };

    virtual ~InputMonitor() = default;
    // Motion is reported only while the left button is down. Dropping the handle ends it.
    [[nodiscard]] virtual std::unique_ptr<Observation>
    observe(std::function<void(const Event &)> onEvent) = 0;
    // Another program is offering something by drag and drop, as far as the platform tells.
    [[nodiscard]] virtual bool isForeignDragOffered() const = 0;
    [[nodiscard]] virtual ScreenPoint pointer() const = 0;
};

} // namespace tembra
