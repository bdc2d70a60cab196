#pragma once

#include <QString>

#include <array>
#include <optional>

namespace tembra {

// The pages of the settings window, in their order.
enum class SettingsPageId { general, screenshots, editor, fileTray, imageToText, shortcut, doctor, about };

inline constexpr std::array allSettingsPages{SettingsPageId::general,     SettingsPageId::screenshots,
                                             SettingsPageId::editor,      SettingsPageId::fileTray,
                                             SettingsPageId::imageToText, SettingsPageId::shortcut,
                                             SettingsPageId::doctor,      SettingsPageId::about};

// As the user reads it.
[[nodiscard]] QString title(SettingsPageId page);
// As the command line names it: "general", "screenshots", "editor", "tray", "text", "shortcut", "doctor",
// "about".
[[nodiscard]] QString name(SettingsPageId page);
[[nodiscard]] std::optional<SettingsPageId> settingsPageNamed(const QString &name);

} // namespace tembra
