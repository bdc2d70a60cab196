#pragma once

#include <QWheelEvent>

namespace tembra {

// Makes whole steps of what a wheel or touchpad turns, up being more.
class WheelSteps {
public:
    [[nodiscard]] int take(const QWheelEvent &event) {
        constexpr int step = 120;
        m_rest += event.angleDelta().y();
        const int steps = m_rest / step;
        m_rest -= steps * step;
        return steps;
    }

private:
    int m_rest = 0;
};

} // namespace tembra
