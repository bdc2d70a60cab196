#pragma once

#include <QPointF>

#include <optional>

namespace tembra {

// How the pointer holds a handle: not quite in its middle, and with a hand that may be unsteady. A value, in
// image space.
class HandleGrip {
public:
    // Less than `slack` from `press` is no move.
    HandleGrip(QPointF handle, QPointF press, double slack)
        : m_offset(handle - press), m_press(press), m_slack(slack) {}

    // Where the handle goes; nothing before the pointer has left the place of the press.
    [[nodiscard]] std::optional<QPointF> handleAt(QPointF pointer) {
        m_hasMoved = m_hasMoved || (pointer - m_press).manhattanLength() >= m_slack;
        return m_hasMoved ? std::optional(pointer + m_offset) : std::nullopt;
    }

private:
    QPointF m_offset;
    QPointF m_press;
    double m_slack = 0;
    bool m_hasMoved = false;
};

} // namespace tembra
