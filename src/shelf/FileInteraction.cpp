#include "shelf/FileInteraction.h"

#include <cmath>

namespace tembra {

namespace {

// A press that moves less is a click.
constexpr double dragDistance = 4;

} // namespace

void FileInteraction::pressed(ScreenPoint point, bool onSelection) {
    m_pressPoint = point;
    m_state = onSelection ? State::pressing : State::idle;
}

void FileInteraction::moved(ScreenPoint point) {
    if (m_state == State::pressing &&
        std::hypot(point.x - m_pressPoint.x, point.y - m_pressPoint.y) >= dragDistance)
        m_state = State::dragging;
}

void FileInteraction::released(bool shelfIsOpen) {
    m_state = m_state == State::pressing && shelfIsOpen ? State::awaitingPickup : State::idle;
}

void FileInteraction::pickedUp() {
    if (m_state == State::awaitingPickup)
        m_state = State::idle;
}

} // namespace tembra
