#pragma once

#include <QString>

#include <array>

namespace tembra {

// On which displays the shelf lives.
enum class DisplayPreference { main, all };

inline constexpr std::array allDisplayPreferences{DisplayPreference::main, DisplayPreference::all};

// The stored form.
[[nodiscard]] QString rawValue(DisplayPreference preference);
// "pointer", which earlier versions wrote, reads as `all`; an unknown string as `main`.
[[nodiscard]] DisplayPreference displayPreferenceFromRaw(const QString &raw);

} // namespace tembra
