#include "screenshots/ScreenshotCaptureDetector.h"

#include "platform/CaptureMarkers.h"
#include "platform/FolderFiles.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/CaptureName.h"

#include <QFileInfo>

namespace tembra {

ScreenshotCaptureDetector::ScreenshotCaptureDetector(const CaptureMarkers &markers, const FolderFiles &files)
    : m_markers(markers), m_files(files) {}

bool ScreenshotCaptureDetector::isImageName(QStringView fileName) const {
    return CaptureMedia::isImageExtension(CaptureMedia::extension(fileName));
}

bool ScreenshotCaptureDetector::isVideoName(QStringView fileName) const {
    const QString extension = CaptureMedia::extension(fileName);
    return CaptureMedia::isVideoExtension(extension) || m_markers.isPlatformVideoExtension(extension);
}

std::optional<CaptureReason> ScreenshotCaptureDetector::classify(QStringView fileName, const OpenFile &file,
                                                                 QStringView customPrefix) const {
    const bool isVideo = isVideoName(fileName);
    if (!isVideo && !isImageName(fileName))
        return std::nullopt;
    if (const auto marker = m_markers.marker(file))
        return *marker ? std::optional(CaptureReason::marker) : std::nullopt;
    if (m_markers.metadataSaysCapture(file))
        return CaptureReason::metadata;
    return reasonOfName(fileName, isVideo, customPrefix);
}

std::optional<CaptureReason> ScreenshotCaptureDetector::reasonOfName(QStringView fileName, bool isVideo,
                                                                     QStringView customPrefix) const {
    const QStringView baseName = fileName.first(fileName.lastIndexOf(u'.'));
    if (isCaptureName(baseName, isVideo, customPrefix))
        return CaptureReason::name;
    return m_markers.nameSaysCapture(fileName, customPrefix) ? std::optional(CaptureReason::tool)
                                                             : std::nullopt;
}

bool ScreenshotCaptureDetector::isCapture(QStringView fileName, const OpenFile &file,
                                          QStringView customPrefix) const {
    const bool isVideo = isVideoName(fileName);
    if (!isVideo && !isImageName(fileName))
        return false;
    if (const auto marker = m_markers.marker(file))
        return *marker;
    return reasonOfName(fileName, isVideo, customPrefix) || m_markers.metadataSaysCapture(file);
}

bool ScreenshotCaptureDetector::isCapture(const QString &path, QStringView customPrefix) const {
    const auto file = m_files.open(path);
    return file && isCapture(QFileInfo(path).fileName(), **file, customPrefix);
}

Result<void> ScreenshotCaptureDetector::preserveClassification(const QString &from, const QString &to,
                                                               QStringView customPrefix) const {
    const auto file = m_files.open(from);
    if (!file)
        return failure(file.error());
    const auto marker = m_markers.marker(**file);
    const bool isCapture = classify(QFileInfo(from).fileName(), **file, customPrefix).has_value();
    if (!marker && !isCapture)
        return {};
    return m_markers.setMarker(to, marker.value_or(true));
}

Result<void> ScreenshotCaptureDetector::markAsCapture(const QString &path) const {
    return m_markers.setMarker(path, true);
}

} // namespace tembra
