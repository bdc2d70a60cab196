#pragma once

#include "support/Annotations.h"
#include "support/Pictures.h"

namespace tembra {

// The screenshot whose saves go wrong, and what is drawn on it before and then.
struct SavedShot {
    static inline const QString name = QStringLiteral("shot.png");

    static QByteArray original() { return pictureBytes("png", QSize(80, 60)); }
    static std::vector<ScreenshotAnnotation> oldAnnotations() {
        return {annotationOfKind(ScreenshotAnnotation::Kind::line)};
    }
    static std::vector<ScreenshotAnnotation> newAnnotations() {
        return {annotationOfKind(ScreenshotAnnotation::Kind::blur)};
    }
};

} // namespace tembra
