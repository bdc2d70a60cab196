#include "shelf/FileInteraction.h"

#include <cmath>

namespace tembra {

namespace {

// A press that moves less is a click.
constexpr double dragDistance = 4;

} // namespace

void FileInteraction::pressed(ScreenPoint point, bool onSelection) {
    m_pressPoint = point;
    m_onSelection = onSelection;
    m_state = State::pressing;
}

void FileInteraction::moved(ScreenPoint point, bool isOffered) {
    if (m_state == State::pressing && isOffered &&
        std::hypot(point.x - m_pressPoint.x, point.y - m_pressPoint.y) >= dragDistance)
        m_state = State::dragging;
}

void FileInteraction::released(bool shelfIsOpen) {
    m_state =
        m_state == State::pressing && m_onSelection && shelfIsOpen ? State::awaitingPickup : State::idle;
}

void FileInteraction::pickedUp() {
    if (m_state == State::awaitingPickup)
        m_state = State::idle;
}

} // namespace tembra
