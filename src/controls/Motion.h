#pragma once

#include <chrono>
#include <functional>

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

// Who is asked from now on, besides the widget's style, whether the desktop wants things to change without
// moving; nobody when not set.
void askDesktop(std::function<bool()> isReduced);
// Whether the desktop asks for things to change without moving. What moves without end asks at every turn.
[[nodiscard]] bool isReduced(const QWidget &widget);
// Moves the animation's value from where it is to the target, at once where motion is reduced or the widget
// cannot be seen.
void animateTo(QVariantAnimation &animation, qreal target, const QWidget &widget);

} // namespace tembra::motion
