#pragma once

#include "platform/ScreenGeometry.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

// One connected screen as the platform tells it. Screen points.
struct DisplayFacts {
    // Stays the same while the screen is connected.
    std::uint32_t identifier = 0;
    QString name;
    ScreenRect frame;
    double scale = 1;
    // The frame's height less what panels and docks of the desktop reserve.
    double availableHeight = 0;
    // The camera housing: the inset of the safe area from the top edge, and the free areas to the left and
    // right of it.
    double safeAreaTop = 0;
    std::optional<ScreenRect> auxiliaryTopLeft;
    std::optional<ScreenRect> auxiliaryTopRight;

    bool operator==(const DisplayFacts &) const = default;
};

// The connected screens. Main thread.
class Displays {
public:
    class Observation {
    public:
        virtual ~Observation() = default;
    };

    virtual ~Displays() = default;
    // The main screen first.
    [[nodiscard]] virtual std::vector<DisplayFacts> connected() const = 0;
    // Called after a screen came, went, or changed its place, size or scale. Dropping the handle ends it.
    [[nodiscard]] virtual std::unique_ptr<Observation> observe(std::function<void()> onChange) = 0;
};

} // namespace tembra
