#pragma once

#include "editor/model/EditorStyle.h"
#include "editor/model/ScreenshotAnnotation.h"
#include "platform/UserDefaults.h"

#include <QSizeF>

namespace tembra {

// The last style of each kind of annotation, kept between runs. The colour is one for all; sizes are kept by
// the image's unit (AnnotationEditing.h), so that they look the same on images of any size. Main thread.
class EditorToolStyles {
public:
    using Kind = ScreenshotAnnotation::Kind;

    explicit EditorToolStyles(UserDefaults &defaults) : m_defaults(defaults) {}

    [[nodiscard]] EditorStyle style(Kind kind, QSizeF image) const;
    void remember(Kind kind, const EditorStyle &style, QSizeF image);

private:
    UserDefaults &m_defaults;
};

} // namespace tembra
