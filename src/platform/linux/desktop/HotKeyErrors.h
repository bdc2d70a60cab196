#pragma once

#include "platform/HotKeys.h"

#include <QCoreApplication>

namespace tembra {

[[nodiscard]] inline Error hotKeyTaken() {
    return {HotKeys::errorDomain,
            HotKeys::taken,
            QCoreApplication::translate("HotKeys", "Another program has this shortcut."),
            {}};
}

[[nodiscard]] inline Error hotKeyLost() {
    return {HotKeys::errorDomain,
            HotKeys::lost,
            QCoreApplication::translate("HotKeys",
                                        "The desktop has ended this shortcut. Switch it off and on again."),
            {}};
}

[[nodiscard]] inline Error hotKeysUnavailable() {
    return {HotKeys::errorDomain,
            HotKeys::unavailable,
            QCoreApplication::translate("HotKeys", "This desktop gives programs no shortcuts of their own. "
                                                   "Bind “tembra toggle” to one in its settings."),
            {}};
}

} // namespace tembra
