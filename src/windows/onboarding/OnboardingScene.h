#pragma once

#include "shelf/SpringMotion.h"

#include <QPointF>

#include <optional>

namespace tembra {

// What happens on the miniature desktop of the onboarding. `introduction` begins anew when it has ended.
enum class OnboardingScene { introduction, shelf, waiting, caught };

// A moment of it. Points of the miniature, which is `size` large.
struct OnboardingFrame {
    // How much of what hangs from the top edge is out: from 0 to 1.
    double openness = 0;
    std::optional<QPointF> pointer;

    bool operator==(const OnboardingFrame &) const = default;

    static constexpr double width = 420;
    static constexpr double height = 220;

    using Time = SpringMotion::Time;

    // After `time` since the scene began.
    [[nodiscard]] static OnboardingFrame of(OnboardingScene scene, Time time);
    // The one that stands for the scene where nothing is to move.
    [[nodiscard]] static OnboardingFrame still(OnboardingScene scene);
    // Zero where nothing moves.
    [[nodiscard]] static Time duration(OnboardingScene scene);
};

} // namespace tembra
