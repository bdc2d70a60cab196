#pragma once

#include "editor/model/EditorPencil.h"
#include "editor/model/EditorPoint.h"

#include <QPainterPath>

#include <optional>
#include <span>

namespace tembra {

// What a pencil leaves behind: a smooth curve through the samples whose width depends on the way alone, never
// on how fast the pointer went. Without a style the stroke is equally wide everywhere. To be filled by
// nonzero winding, grown by so much on every side. Image space.
[[nodiscard]] QPainterPath pencilStroke(std::span<const EditorPoint> samples, double width,
                                        const std::optional<EditorPencil> &style, double growth);

} // namespace tembra
