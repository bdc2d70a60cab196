#pragma once

#include "platform/ScreenGeometry.h"

namespace tembra {

// Follows a press on a file selection in another program, from which a file may be on its way to the shelf. A
// value; screen points.
class FileInteraction {
public:
    enum class State {
        idle,
        // The button is down on a file selection.
        pressing,
        // Files were selected while the shelf is open; it waits for the pointer to come back with or without
        // them.
        awaitingPickup,
        // The selection is being dragged.
        dragging
    };

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isIdle() const { return m_state == State::idle; }

    // `onSelection`: the press is on a file selection outside of the shelf.
    void pressed(ScreenPoint point, bool onSelection);
    void moved(ScreenPoint point);
    void released(bool shelfIsOpen);
    // The pointer is back at the shelf.
    void pickedUp();

private:
    State m_state = State::idle;
    ScreenPoint m_pressPoint;
};

} // namespace tembra
