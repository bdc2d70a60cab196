#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

class ScreenshotCaptureDetector;

// Moves screenshots off the Desktop into a folder of their own.
struct DesktopScreenshotOrganizer {
    struct Report {
        int moved = 0;
        int failed = 0;

        bool operator==(const Report &) const = default;
    };

    // A directory that is there already is accepted, a link or a file in its place is not. Errors: "Cocoa",
    // "POSIX".
    static Result<void> createFolder(const QString &folder);
    // How many screenshots, without recordings, lie in the folder; none where it cannot be listed. The prefix
    // is the one that the tool's user has given the names of captures.
    [[nodiscard]] static int countScreenshots(const QString &folder,
                                              const ScreenshotCaptureDetector &detector,
                                              const QString &customPrefix = {});
    // Moves every screenshot, but no recording, of the one folder into the other; a name that is taken gets a
    // counter. Their dates and their being captures outlast the move to another volume. What cannot be moved
    // stays where it is. Error: the source cannot be listed.
    static Result<Report> moveScreenshots(const QString &from, const QString &to,
                                          const ScreenshotCaptureDetector &detector,
                                          const QString &customPrefix = {});
};

} // namespace tembra
