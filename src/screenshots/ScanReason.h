#pragma once

namespace tembra {

// Why a scan of the folder runs, for the log.
enum class ScanReason {
    startup,
    request,
    editorWrite,
    directoryEvent,
    treeEvent,
    recovery,
    stabilization,
    stateChanged,
    video,
    immediate
};

[[nodiscard]] const char *rawValue(ScanReason reason);

} // namespace tembra
