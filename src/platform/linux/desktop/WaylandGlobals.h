#pragma once

#include <string>
#include <vector>

namespace tembra {

// What the compositor that WAYLAND_DISPLAY names offers, by the names of the interfaces; empty where there is
// none that answers soon. Needs no application object.
[[nodiscard]] std::vector<std::string> waylandGlobals();

} // namespace tembra
