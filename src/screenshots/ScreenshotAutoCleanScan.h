#pragma once

#include "base/Result.h"
#include "screenshots/AutoCleanCandidate.h"
#include "screenshots/AutoCleanRequest.h"

#include <QString>

#include <chrono>
#include <functional>
#include <vector>

namespace tembra {

class FolderFiles;
class OpenFile;
class ScreenshotCaptureDetector;

// Finds what auto-clean may move: whole captures beneath the root that are older than the cutoff and neither
// pinned, spared, nor changed just now. It follows no link and enters no other mount. Used by one thread at a
// time.
class ScreenshotAutoCleanScan {
public:
    // What was made or changed within this time is left alone.
    static constexpr std::chrono::seconds settling{60};

    // `customPrefix` is asked once a run for the beginning of names that the user has set in the screenshot
    // tool. The services must outlive it.
    ScreenshotAutoCleanScan(const FolderFiles &files, const ScreenshotCaptureDetector &detector,
                            std::function<QString()> customPrefix);

    // Oldest first, their paths beginning with the root as it was given. When it was cancelled, what had been
    // found until then.
    [[nodiscard]] Result<std::vector<AutoCleanCandidate>> candidates(const AutoCleanRequest &request) const;
    // Whether the dates let the file go.
    [[nodiscard]] static bool isOldEnough(const FileFacts &facts, const AutoCleanRequest &request);

    // Whether the path leads to something beneath the root that is no link itself, and no link or ".." on the
    // way leads out. `depth` counts the names below the root: 1 is for what lies directly in it.
    [[nodiscard]] static bool isSafeDescendant(const QString &path, const QString &root, int depth);
    [[nodiscard]] static bool isSafeDescendant(const QString &path, const QString &root, bool recursive);

private:
    class Run;

    const FolderFiles &m_files;
    const ScreenshotCaptureDetector &m_detector;
    const std::function<QString()> m_customPrefix;
};

} // namespace tembra
