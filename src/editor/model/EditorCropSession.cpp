#include "editor/model/EditorCropSession.h"

#include "editor/model/RectHandles.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr double handleReach = 12;

bool isWhole(double number) {
    return std::isfinite(number) && number == std::floor(number);
}

QRectF moved(const QRectF &rect, const QRectF &limits, QPointF by) {
    const double dx = std::clamp(by.x(), limits.left() - rect.left(), limits.right() - rect.right());
    const double dy = std::clamp(by.y(), limits.top() - rect.top(), limits.bottom() - rect.bottom());
    return rect.translated(dx, dy);
}

// Each edge by itself, so that the rectangle shrinks to a pixel but never turns inside out.
QRectF resized(const QRectF &rect, const QRectF &limits, int handle, QPointF by) {
    const bool movesLeft = handle == 0 || handle >= 6;
    const bool movesRight = handle >= 2 && handle <= 4;
    const bool movesTop = handle <= 2;
    const bool movesBottom = handle >= 4 && handle <= 6;
    QRectF result = rect;
    if (movesLeft)
        result.setLeft(std::clamp(rect.left() + by.x(), limits.left(), rect.right() - 1));
    if (movesRight)
        result.setRight(std::clamp(rect.right() + by.x(), rect.left() + 1, limits.right()));
    if (movesTop)
        result.setTop(std::clamp(rect.top() + by.y(), limits.top(), rect.bottom() - 1));
    if (movesBottom)
        result.setBottom(std::clamp(rect.bottom() + by.y(), rect.top() + 1, limits.bottom()));
    return result;
}

} // namespace

bool EditorCropSession::valid(const QRectF &crop, const QRectF &image) {
    return isWhole(crop.x()) && isWhole(crop.y()) && isWhole(crop.width()) && isWhole(crop.height()) &&
           crop.width() >= 1 && crop.height() >= 1 && crop.left() >= image.left() &&
           crop.top() >= image.top() && crop.right() <= image.right() && crop.bottom() <= image.bottom();
}

std::optional<int> EditorCropSession::handleAt(QPointF point, const std::array<QPointF, 8> &positions) {
    std::optional<int> nearest;
    double nearestDistance = 0;
    for (int handle = 0; handle < 8; ++handle) {
        const QPointF offset = positions[static_cast<std::size_t>(handle)] - point;
        if (std::abs(offset.x()) > handleReach || std::abs(offset.y()) > handleReach)
            continue;
        const double distance = std::hypot(offset.x(), offset.y());
        if (nearest && distance >= nearestDistance)
            continue;
        nearest = handle;
        nearestDistance = distance;
    }
    return nearest;
}

std::array<QPointF, 8> EditorCropSession::handlePositions(const QRectF &rect) {
    std::array<QPointF, 8> positions;
    for (int handle = 0; handle < rectHandles::count; ++handle)
        positions.at(static_cast<std::size_t>(handle)) = rectHandles::position(rect, handle);
    return positions;
}

EditorCropSession::EditorCropSession(QSizeF imageSize, const std::optional<QRectF> &crop)
    : m_original({}, imageSize), m_initial(crop.value_or(m_original)), m_rect(m_initial) {}

void EditorCropSession::beginDrag(QPointF start, std::optional<int> handle) {
    m_start = start;
    m_handle = handle;
    m_dragRect = m_rect;
}

void EditorCropSession::drag(QPointF to) {
    if (!m_dragRect)
        return;
    const QPointF offset = to - m_start;
    const QPointF by(std::round(offset.x()), std::round(offset.y()));
    m_rect = m_handle ? resized(*m_dragRect, m_original, *m_handle, by) : moved(*m_dragRect, m_original, by);
}

} // namespace tembra
