#include "editor/canvas/CanvasTarget.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/RectHandles.h"

#include <QLineF>

#include <algorithm>
#include <ranges>

namespace tembra {

namespace {

// In points of the view.
constexpr double handleReach = 9;
constexpr double bodyTolerance = 5;
constexpr double roomForEdges = 36;
constexpr double roomForCorners = 20;

std::optional<CanvasTarget> handleAt(QPointF point, const ScreenshotAnnotation &annotation, double zoom) {
    std::optional<CanvasTarget> best;
    double nearest = handleReach / zoom;
    for (const CanvasTarget::Handle &handle : CanvasTarget::handlesOf(annotation, zoom)) {
        const double distance = QLineF(point, handle.position).length();
        if (distance > nearest)
            continue;
        nearest = distance;
        best = CanvasTarget{annotation.id, handle};
    }
    return best;
}

} // namespace

std::vector<CanvasTarget::Handle> CanvasTarget::handlesOf(const ScreenshotAnnotation &annotation,
                                                          double zoom) {
    std::vector<Handle> handles;
    if (!annotation.isDrawable())
        return handles;
    if (annotation.hasRectHandles()) {
        const QRectF rect = annotation.shapeRect();
        // Of a tiny one there must be something left to be moved by.
        if (std::max(rect.width(), rect.height()) * zoom < roomForCorners)
            return {{rect.bottomRight(), true, 4}};
        for (int index = 0; index < rectHandles::count; ++index) {
            const double side = index % 4 == 1 ? rect.width() : rect.height();
            if (index % 2 == 0 || side * zoom >= roomForEdges)
                handles.push_back({rectHandles::position(rect, index), true, index});
        }
        return handles;
    }
    if (annotation.text) {
        const QRectF box(annotation.points[0].toPointF(), AnnotationText(*annotation.text).size());
        handles.push_back({QPointF(box.right(), box.center().y()), false, 0});
        return handles;
    }
    int index = 0;
    for (const QPointF point : annotation.editingPoints())
        handles.push_back({point, false, index++});
    return handles;
}

std::optional<CanvasTarget> CanvasTarget::at(QPointF point, std::span<const ScreenshotAnnotation> annotations,
                                             const QSet<QUuid> &selected, double zoom) {
    const double tolerance = bodyTolerance / zoom;
    if (selected.size() == 1) {
        if (const auto *only = annotationEditing::find(annotations, *selected.begin())) {
            if (const auto handle = handleAt(point, *only, zoom))
                return handle;
        }
    }
    const auto topmost = [&](const auto &isMeant) -> std::optional<CanvasTarget> {
        for (const ScreenshotAnnotation &annotation : std::views::reverse(annotations)) {
            if (isMeant(annotation))
                return CanvasTarget{annotation.id, std::nullopt};
        }
        return std::nullopt;
    };
    if (const auto body =
            topmost([&](const ScreenshotAnnotation &one) { return one.contains(point, tolerance); }))
        return body;
    return topmost([&](const ScreenshotAnnotation &one) {
        return one.isShape() && selected.contains(one.id) && one.shapeRect().contains(point);
    });
}

} // namespace tembra
