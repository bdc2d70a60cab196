#include "screenshots/CaptureCompleteness.h"

#include "screenshots/ImageCompleteness.h"
#include "screenshots/VideoCompleteness.h"

namespace tembra {

std::chrono::nanoseconds CaptureCompleteness::stillFor(const FileVersion &version, Instant now) {
    const auto age = now - version.modifiedAt;
    return age > -justWritten ? age : std::chrono::nanoseconds::max();
}

bool CaptureCompleteness::isComplete(const OpenFile &file, QStringView extension, bool isVideo,
                                     std::chrono::nanoseconds stillFor) {
    if (isVideo)
        return VideoCompleteness::isCompleteVideo(file, extension, stillFor);
    return ImageCompleteness::isCompleteImage(file, extension, stillFor < justWritten);
}

} // namespace tembra
