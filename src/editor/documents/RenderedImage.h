#pragma once

#include "base/Result.h"
#include "editor/model/ScreenshotEdits.h"

#include <QByteArray>
#include <QString>

namespace tembra {

// What is drawn on an original, as an image file. Any thread but the main one. Errors: ScreenshotEditError.
struct RenderedImage {
    static inline const QString png = QStringLiteral("public.png");
    static inline const QString jpeg = QStringLiteral("public.jpeg");

    // The type that a file's extension tells; empty when it tells none that can be written.
    [[nodiscard]] static QString typeOf(const QString &path);
    [[nodiscard]] static Result<QByteArray> encoded(const QByteArray &original, const ScreenshotEdits &edits,
                                                    const QString &type);
};

} // namespace tembra
