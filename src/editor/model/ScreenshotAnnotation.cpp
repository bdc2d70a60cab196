#include "editor/model/ScreenshotAnnotation.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// Far beyond any picture; what lies farther off would only cost time and precision.
constexpr double farthest = 1e6;

std::size_t pointsNeeded(Kind kind) {
    switch (kind) {
    case Kind::text:
    case Kind::number:
    case Kind::pencil:
        return 1;
    case Kind::arrow:
    case Kind::line:
    case Kind::rectangle:
    case Kind::ellipse:
    case Kind::blur:
        return 2;
    }
    Q_UNREACHABLE();
}

bool isNear(const EditorPoint &point) {
    return std::abs(point.x) <= farthest && std::abs(point.y) <= farthest;
}

} // namespace

bool ScreenshotAnnotation::isShape() const {
    return kind == Kind::rectangle || kind == Kind::ellipse;
}

bool ScreenshotAnnotation::hasRectHandles() const {
    return isShape() || kind == Kind::blur;
}

bool ScreenshotAnnotation::hasValidPayload() const {
    if (text.has_value() != (kind == Kind::text) || number.has_value() != (kind == Kind::number) ||
        blur.has_value() != (kind == Kind::blur))
        return false;
    return (!text || text->isValid()) && (!number || number->isValid()) &&
           (kind != Kind::pencil || !pencil || pencil->isValid());
}

bool ScreenshotAnnotation::isFinite() const {
    return std::isfinite(width) && (!bendPoint || bendPoint->isFinite()) &&
           std::ranges::all_of(points, &EditorPoint::isFinite);
}

bool ScreenshotAnnotation::isDrawable() const {
    return isFinite() && points.size() >= pointsNeeded(kind) && width >= 0 && width <= farthest &&
           (!bendPoint || isNear(*bendPoint)) && std::ranges::all_of(points, isNear) && hasValidPayload();
}

} // namespace tembra
