#pragma once

#include "base/Result.h"
#include "platform/OpenFile.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace tembra {

// What a file itself says about being a screen capture, and what the platform's tools call theirs. Any
// thread.
class CaptureMarkers {
public:
    virtual ~CaptureMarkers() = default;
    // The screen-capture marker attached to the file: yes, no, or none.
    [[nodiscard]] virtual std::optional<bool> marker(const OpenFile &file) const = 0;
    virtual Result<void> setMarker(const QString &path, bool isCapture) const = 0;
    // Whether data inside the file names a screenshot tool as its maker.
    [[nodiscard]] virtual bool metadataSaysCapture(const OpenFile &file) const = 0;
    // Whether the name (without folder) is one that a tool of this platform gives to its captures.
    // `customPrefix` is how the user lets the names begin; empty when that is not changed.
    [[nodiscard]] virtual bool nameSaysCapture(QStringView fileName, QStringView customPrefix) const = 0;
    // Extensions of recordings, lower case, that tools write on this platform beside those known everywhere.
    [[nodiscard]] virtual bool isPlatformVideoExtension(QStringView extension) const = 0;
};

} // namespace tembra
