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

bool CaptureMedia::isEditable(QStringView fileName) {
    const QString extension = CaptureMedia::extension(fileName);
    return extension == u"png" || extension == u"jpg" || extension == u"jpeg";
}

bool CaptureMedia::mayBeMedia(std::string_view fileName) {
    const auto dot = fileName.rfind('.');
    return dot != std::string_view::npos && fileName.size() - dot >= 4 && fileName.size() - dot <= 5;
}

} // namespace tembra
