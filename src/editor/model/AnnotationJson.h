#pragma once

#include "editor/model/ScreenshotAnnotation.h"
#include "editor/model/StrictJson.h"

#include <QRectF>

namespace tembra {

// How annotations and crops stand in JSON. Reading gives nothing where a required member is missing, a kind
// is unknown or a value has another type; whether the values make sense is ScreenshotAnnotation's to say.

[[nodiscard]] Json toJson(const ScreenshotAnnotation &annotation);
[[nodiscard]] Json toJson(const std::vector<ScreenshotAnnotation> &annotations);
[[nodiscard]] std::optional<ScreenshotAnnotation> annotationOf(const Json &json);
[[nodiscard]] std::optional<std::vector<ScreenshotAnnotation>> annotationsOf(const Json &json);

[[nodiscard]] Json toJson(const QRectF &rect);
[[nodiscard]] std::optional<QRectF> rectOf(const Json &json);

[[nodiscard]] Json toJson(const QUuid &id);

} // namespace tembra
