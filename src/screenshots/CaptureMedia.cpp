#include "screenshots/CaptureMedia.h"

#include <algorithm>

namespace tembra {

QString CaptureMedia::extension(QStringView fileName) {
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot <= 0 ? QString() : fileName.sliced(dot + 1).toString().toLower();
}

bool CaptureMedia::isImageExtension(QStringView extension) {
    return std::ranges::find(imageExtensions, extension) != imageExtensions.end();
}

bool CaptureMedia::isVideoExtension(QStringView extension) {
    return std::ranges::find(videoExtensions, extension) != videoExtensions.end();
}

} // namespace tembra
