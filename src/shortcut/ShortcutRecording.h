#pragma once

#include "settings/ActivationShortcut.h"

#include <optional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace tembra {

class HotKeys;

// The shortcut that a key's press stands for. It need not be valid: whoever records then waits for the next
// press. Nothing for a key that cannot be part of one, such as a modifier.
[[nodiscard]] std::optional<ActivationShortcut> recordedShortcut(const QKeyEvent &event,
                                                                 const HotKeys &hotKeys);

} // namespace tembra
