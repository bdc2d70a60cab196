#include "shelf/SpringMotion.h"

#include <cmath>

namespace tembra {

namespace {

// x(t) = target + (a + b t) exp(-w t), the critically damped oscillator; with w t = 7.4 half a percent is
// left of the way.
constexpr double frequency = 7.4 / SpringMotion::settling.count();

} // namespace

void SpringMotion::retarget(double target, Time elapsed) {
    const double start = value(elapsed);
    const double startSpeed = speed(elapsed);
    m_start = start;
    m_startSpeed = startSpeed;
    m_target = target;
}

void SpringMotion::jump(double value) {
    m_start = value;
    m_target = value;
    m_startSpeed = 0;
}

double SpringMotion::value(Time elapsed) const {
    if (elapsed >= settling)
        return m_target;
    const double t = elapsed.count();
    const double a = m_start - m_target;
    const double b = m_startSpeed + frequency * a;
    return m_target + (a + b * t) * std::exp(-frequency * t);
}

double SpringMotion::speed(Time elapsed) const {
    if (elapsed >= settling)
        return 0;
    const double t = elapsed.count();
    const double a = m_start - m_target;
    const double b = m_startSpeed + frequency * a;
    return (b - frequency * (a + b * t)) * std::exp(-frequency * t);
}

} // namespace tembra
