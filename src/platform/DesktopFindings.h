#pragma once

#include "platform/Finding.h"

namespace tembra {

// By which ways this desktop lets the program do what it does.
struct DesktopFindings {
    // How its windows get to the edge of the screen.
    Finding windows;
    Finding clipboard;
    // Keys that work in every program.
    Finding shortcut;
    Finding statusItem;
    // What is so where nothing is told of changes in a folder, and where text is not read in a language of
    // the user.
    Finding noFolderEvents;
    Finding missingLanguages;

    bool operator==(const DesktopFindings &) const = default;
};

} // namespace tembra
