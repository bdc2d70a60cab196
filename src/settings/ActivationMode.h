#pragma once

#include <QString>

#include <array>

namespace tembra {

// How the shelf opens from its edge tab.
enum class ActivationMode { click, hover };

inline constexpr std::array allActivationModes{ActivationMode::click, ActivationMode::hover};

// The stored form.
[[nodiscard]] QString rawValue(ActivationMode mode);
// An unknown string reads as `hover`.
[[nodiscard]] ActivationMode activationModeFromRaw(const QString &raw);

} // namespace tembra
