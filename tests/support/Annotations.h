#pragma once

#include "editor/model/ScreenshotAnnotation.h"

namespace tembra {

// A sound annotation of a kind, between (10, 10) and (60, 40).
inline ScreenshotAnnotation annotationOfKind(ScreenshotAnnotation::Kind kind) {
    using Kind = ScreenshotAnnotation::Kind;
    ScreenshotAnnotation annotation{.id = QUuid(QStringLiteral("11111111-2222-3333-4444-aaaaaaaaaaaa")),
                                    .kind = kind,
                                    .points = {{10, 10}, {60, 40}},
                                    .color = {1, 0.25, 0.5, 1},
                                    .width = 4};
    if (kind == Kind::text)
        annotation.text = EditorText{QStringLiteral("Text"), 14, {0, 0, 0, 0}, 200};
    if (kind == Kind::number)
        annotation.number = EditorNumber{.value = 1, .diameter = 24};
    if (kind == Kind::blur)
        annotation.blur = EditorBlur{};
    if (kind == Kind::pencil)
        annotation.pencil = EditorPencil{};
    return annotation;
}

} // namespace tembra
