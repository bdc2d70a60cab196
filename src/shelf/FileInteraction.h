#pragma once

#include "platform/ScreenGeometry.h"

namespace tembra {

// Follows a press on a file selection in another program, from which a file may be on its way to the shelf. A
// value; screen points.
class FileInteraction {
public:
    enum class State {
        idle,
        // The button is down outside of the shelf.
        pressing,
        // Files were selected while the shelf is open; it waits for the pointer to come back with or without
        // them.
        awaitingPickup,
        // The selection is being dragged.
        dragging
    };

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isIdle() const { return m_state == State::idle; }
    [[nodiscard]] bool isDragging() const { return m_state == State::dragging; }

    // `onSelection`: the program that was pressed is known to hold a selection of files.
    void pressed(ScreenPoint point, bool onSelection);
    // `isOffered`: a program offers what it drags.
    void moved(ScreenPoint point, bool isOffered);
    // A press on the shelf itself.
    void pressedShelf() { m_state = State::idle; }
    void released(bool shelfIsOpen);
    // The pointer is back at the shelf.
    void pickedUp();

private:
    State m_state = State::idle;
    ScreenPoint m_pressPoint;
    bool m_onSelection = false;
};

} // namespace tembra
