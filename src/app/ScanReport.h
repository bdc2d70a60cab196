#pragma once

#include "base/Clocks.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace tembra {

class FolderFiles;
class ScreenshotCaptureDetector;

// What is recognised in a folder and why, and why the rest is not. A value.
struct ScanReport {
    struct Capture {
        QString path;
        bool isVideo = false;
        QString section;
        Instant createdAt{};
        bool isComplete = false;
        QString because;
    };
    struct Skipped {
        QString path;
        QString because;
    };

    QString folder;
    // Newest first.
    std::vector<Capture> captures;
    std::vector<Skipped> skipped;

    // Error: the folder cannot be read.
    [[nodiscard]] static Result<ScanReport> of(const QString &folder, bool includesSubfolders,
                                               const FolderFiles &files,
                                               const ScreenshotCaptureDetector &detector,
                                               const QString &customPrefix, Instant now);

    // Keys are only ever added; dates are ISO 8601 with zone.
    [[nodiscard]] QByteArray toJson() const;
    // A line a file, to read.
    [[nodiscard]] QString toText() const;
};

} // namespace tembra
