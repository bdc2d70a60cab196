#include "platform/linux/desktop/WindowingChoice.h"

#include "platform/linux/desktop/LayerShellProtocol.h"
#include "platform/linux/desktop/WaylandGlobals.h"

#include <QtGlobal>

#include <algorithm>

namespace tembra {

WindowingChoice::Facts WindowingChoice::ofSession() {
    Facts facts;
    facts.isChosenByUser = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    facts.hasXServer = !qEnvironmentVariableIsEmpty("DISPLAY");
    const std::vector<std::string> globals = waylandGlobals();
    facts.hasCompositor = !globals.empty();
    facts.hasLayerShell = std::ranges::count(globals, layer_shell::interface().name) > 0;
    return facts;
}

WindowingChoice WindowingChoice::of(const Facts &facts) {
    if (facts.hasCompositor && facts.hasLayerShell)
        return {.platform = facts.isChosenByUser ? ""
                            : facts.hasXServer   ? "wayland;xcb"
                                                 : "wayland",
                .placesWindows = true};
    if (facts.isChosenByUser)
        return {};
    if (facts.hasXServer && facts.hasCompositor) {
        return {.platform = "xcb",
                .note = "This Wayland compositor lets programs put nothing at the edge of the screen "
                        "(no wlr-layer-shell), so Tembra runs through XWayland: files dragged from Wayland "
                        "windows may not open the shelf, and the shortcut needs the desktop's portal."};
    }
    if (facts.hasXServer)
        return {.platform = "xcb"};
    if (facts.hasCompositor) {
        return {.platform = "wayland",
                .note = "This Wayland compositor lets programs put nothing at the edge of the screen "
                        "(no wlr-layer-shell) and runs no X server: the shelf is an ordinary window, which "
                        "“tembra toggle” opens and closes."};
    }
    return {};
}

} // namespace tembra
