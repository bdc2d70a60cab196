#pragma once

#include <QString>

#include <cstdint>

namespace tembra {

struct ActivationShortcut;

// "⇧⌘W": control, option, shift and command in this order, then the key's label.
[[nodiscard]] QString title(const ActivationShortcut &shortcut);
// The same in the words that are written on keyboards here: "Shift+Super+W".
[[nodiscard]] QString platformTitle(const ActivationShortcut &shortcut);

// What keys without a character of their own show in a title, by virtual key code; empty for all others.
[[nodiscard]] QString specialKeyLabel(std::uint32_t keyCode);

} // namespace tembra
