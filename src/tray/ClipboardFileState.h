#pragma once

namespace tembra {

// What has become of a file of the tray.
enum class ClipboardFileState {
    // It is there.
    available,
    // It cannot be reached now and may come back, as when its disk is not connected: its entry stays, greyed.
    unavailable,
    // It is gone, and its entry goes.
    removed,
};

} // namespace tembra
