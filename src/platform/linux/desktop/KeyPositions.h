#pragma once

#include <QtGlobal>

#include <cstdint>
#include <optional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace tembra {

// Which key of a keyboard is which, by its place and whatever the layout puts there: the virtual key codes of
// macOS (HIToolbox's kVK_…, below 128) and the keycodes of X and Wayland, which are those of the kernel
// (linux/input-event-codes.h) and 8.
[[nodiscard]] std::optional<std::uint32_t> keycodeOf(std::uint32_t virtualKeyCode);
[[nodiscard]] std::optional<std::uint32_t> virtualKeyOf(std::uint32_t keycode);
[[nodiscard]] std::optional<std::uint32_t> virtualKeyOf(const QKeyEvent &event);

} // namespace tembra
