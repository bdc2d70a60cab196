#include "screenshots/ScanReason.h"

#include <array>
#include <cstddef>

namespace tembra {

const char *rawValue(ScanReason reason) {
    static constexpr std::array names{"startup",   "request",  "editorWrite",   "directoryEvent",
                                      "treeEvent", "recovery", "stabilization", "stateChanged",
                                      "video",     "immediate"};
    return names.at(static_cast<std::size_t>(reason));
}

} // namespace tembra
