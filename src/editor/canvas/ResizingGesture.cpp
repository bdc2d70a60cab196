#include "editor/canvas/ResizingGesture.h"

#include "editor/canvas/AlignmentGuides.h"
#include "editor/model/RectHandles.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

bool movesHorizontally(int handle) {
    return handle % 4 != 1;
}

bool movesVertically(int handle) {
    return handle % 4 != 3;
}

// With the middle where it was. The smaller of the distances to the limits bounds it on both sides.
QRectF resizedAboutCenter(const QRectF &rect, int handle, QPointF point, bool preservingAspect,
                          const QRectF &limits) {
    const QPointF center = rect.center();
    const double mostX = std::min(center.x() - limits.left(), limits.right() - center.x());
    const double mostY = std::min(center.y() - limits.top(), limits.bottom() - center.y());
    double x = movesHorizontally(handle) ? std::abs(point.x() - center.x()) : rect.width() / 2;
    double y = movesVertically(handle) ? std::abs(point.y() - center.y()) : rect.height() / 2;
    if (preservingAspect && rect.width() > 0 && rect.height() > 0) {
        const double byX = movesHorizontally(handle) ? 2 * x / rect.width() : 0;
        const double byY = movesVertically(handle) ? 2 * y / rect.height() : 0;
        const double scale =
            std::min({std::max(byX, byY), 2 * mostX / rect.width(), 2 * mostY / rect.height()});
        x = rect.width() / 2 * scale;
        y = rect.height() / 2 * scale;
    }
    x = std::clamp(x, 0.5, std::max(mostX, 0.5));
    y = std::clamp(y, 0.5, std::max(mostY, 0.5));
    return {center.x() - x, center.y() - y, 2 * x, 2 * y};
}

} // namespace

ResizingGesture::ResizingGesture(ScreenshotAnnotation annotation, int handle, QPointF start,
                                 Surroundings surroundings)
    : m_annotation(std::move(annotation)),
      m_handle(handle),
      m_surroundings(std::move(surroundings)),
      m_grip(rectHandles::position(m_annotation.shapeRect(), handle), start, m_surroundings.tolerance / 2) {}

CanvasDraft ResizingGesture::drag(QPointF pointer, Qt::KeyboardModifiers modifiers) {
    const auto held = m_grip.handleAt(pointer);
    if (!held)
        return {};
    const bool preservesAspect = modifiers.testFlag(Qt::ShiftModifier);
    CanvasDraft draft;
    QPointF point(std::round(held->x()), std::round(held->y()));
    if (!preservesAspect && !modifiers.testFlag(Qt::ControlModifier)) {
        AlignmentGuides guides =
            AlignmentGuides::of(QRectF(point, QSizeF()), m_surroundings.targets, m_surroundings.tolerance);
        if (!movesHorizontally(m_handle) || !movesVertically(m_handle)) {
            const bool isUpright = movesHorizontally(m_handle);
            std::erase_if(guides.lines, [&](const QLineF &line) { return (line.dx() == 0) != isUpright; });
        }
        point += guides.correction;
        draft.guides = std::move(guides.lines);
    }
    ScreenshotAnnotation resized =
        m_annotation.resizedShape(m_handle, point, preservesAspect, m_surroundings.limits);
    if (modifiers & Qt::AltModifier) {
        const QRectF rect = resizedAboutCenter(m_annotation.shapeRect(), m_handle, point, preservesAspect,
                                               m_surroundings.limits);
        resized.points = {EditorPoint::from(rect.topLeft()), EditorPoint::from(rect.bottomRight())};
    }
    draft.annotations.push_back(std::move(resized));
    return draft;
}

QString ResizingGesture::actionName() const {
    return QCoreApplication::translate("ScreenshotEdit", "Resize");
}

} // namespace tembra
