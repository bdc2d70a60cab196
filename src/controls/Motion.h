#pragma once

#include <chrono>

class QVariantAnimation;
class QWidget;

// How long things take to move.
namespace tembra::motion {

// A control takes on its new state.
inline constexpr std::chrono::milliseconds control{140};
// Something appears or goes.
inline constexpr std::chrono::milliseconds fade{160};
// Something shows itself for a moment.
inline constexpr std::chrono::milliseconds flash{1100};

// Whether the desktop asks for things to change without moving.
[[nodiscard]] bool isReduced(const QWidget &widget);
// Moves the animation's value from where it is to the target, at once where motion is reduced or the widget
// cannot be seen.
void animateTo(QVariantAnimation &animation, qreal target, const QWidget &widget);

} // namespace tembra::motion
