#pragma once

#include "platform/DesktopFindings.h"

namespace tembra {

// By which ways the desktop's services are reached in this session.
struct DesktopPaths {
    enum class Windows { x11, x11Uncomposited, xwayland, layerShell, unusedLayerShell, plainWayland };
    enum class Clipboard { x11, dataControl, focusedOnly };
    enum class Shortcut { grab, portal, none };

    Windows windows = Windows::x11;
    Clipboard clipboard = Clipboard::x11;
    Shortcut shortcut = Shortcut::grab;
    bool hasStatusItems = true;

    // The same in the user's words.
    [[nodiscard]] DesktopFindings findings() const;
};

} // namespace tembra
