#pragma once

#include <chrono>

namespace tembra {

// One number that moves to a target like a critically damped spring (no overshoot), settled after 220 ms. A
// new target at any moment continues with the place and speed of that moment. A value: time is handed in.
class SpringMotion {
public:
    using Time = std::chrono::duration<double>;

    static constexpr Time settling{0.220};

    explicit SpringMotion(double value = 0) : m_start(value), m_target(value) {}

    // From where the motion is after `elapsed` since it last began.
    void retarget(double target, Time elapsed);
    // Without motion.
    void jump(double value);

    [[nodiscard]] double value(Time elapsed) const;
    [[nodiscard]] double target() const { return m_target; }

private:
    [[nodiscard]] double speed(Time elapsed) const;

    double m_start;
    double m_target;
    double m_startSpeed = 0;
};

} // namespace tembra
