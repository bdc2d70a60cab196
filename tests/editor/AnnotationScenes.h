#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QImage>

#include <vector>

namespace tembra {

// Annotations on a background, as the reference pictures show them.
struct AnnotationScene {
    enum class Background { white, black, red, photo };

    const char *name = nullptr;
    QSize size;
    Background background = Background::white;
    std::vector<ScreenshotAnnotation> annotations;
    // Where the annotations' own type lacks the script: the typeface that takes its place in the picture.
    QString family;
};

[[nodiscard]] std::vector<AnnotationScene> annotationScenes();

// The part of a scene in pixels of its image, enlarged.
[[nodiscard]] QImage drawnScene(const AnnotationScene &scene, double scale, const QRect &part);

} // namespace tembra
