#pragma once

#include "platform/CaptureMarkers.h"

namespace tembra {

// CaptureMarkers on Linux. The marker is the extended attribute that macOS sets, with the prefix that Linux
// wants; its value is a binary property list holding a boolean, or "1" and "0".
class LinuxCaptureMarkers final : public CaptureMarkers {
public:
    [[nodiscard]] std::optional<bool> marker(const OpenFile &file) const override;
    Result<void> setMarker(const QString &path, bool isCapture) const override;
    [[nodiscard]] bool metadataSaysCapture(const OpenFile &file) const override;
    [[nodiscard]] bool nameSaysCapture(QStringView fileName, QStringView customPrefix) const override;
    [[nodiscard]] bool isPlatformVideoExtension(QStringView extension) const override;
};

} // namespace tembra
