#pragma once

#include "base/Result.h"
#include "screenshots/CaptureReason.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

namespace tembra {

class CaptureMarkers;
class FolderFiles;
class OpenFile;

// Decides whether a file is a screenshot or a screen recording. Any thread, as far as the services are.
class ScreenshotCaptureDetector {
public:
    // The services must outlive it.
    ScreenshotCaptureDetector(const CaptureMarkers &markers, const FolderFiles &files);

    [[nodiscard]] bool isImageName(QStringView fileName) const;
    [[nodiscard]] bool isVideoName(QStringView fileName) const;

    // Why the file is a capture, or nothing when it is none. The extension comes first, then the marker,
    // which decides either way, then what the file says inside, then its name. `customPrefix` is the
    // beginning of names that the user has set in the screenshot tool; empty when none.
    [[nodiscard]] std::optional<CaptureReason> classify(QStringView fileName, const OpenFile &file,
                                                        QStringView customPrefix) const;
    // Whether there is such a reason, looking inside the file only when its name gives none.
    [[nodiscard]] bool isCapture(QStringView fileName, const OpenFile &file, QStringView customPrefix) const;
    [[nodiscard]] bool isCapture(const QString &path, QStringView customPrefix = {}) const;

    // Marks a copy, or what was saved anew under another name, as the capture that `from` is, so that it
    // stays one whatever it is called.
    Result<void> preserveClassification(const QString &from, const QString &to,
                                        QStringView customPrefix = {}) const;
    // Makes the file a capture whatever it is called.
    Result<void> markAsCapture(const QString &path) const;

private:
    [[nodiscard]] std::optional<CaptureReason> reasonOfName(QStringView fileName, bool isVideo,
                                                            QStringView customPrefix) const;

    const CaptureMarkers &m_markers;
    const FolderFiles &m_files;
};

} // namespace tembra
