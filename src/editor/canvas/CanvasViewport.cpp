#include "editor/canvas/CanvasViewport.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// Within the margins a content that fits lies in the middle, and the edges of a larger one come no farther.
double placed(double origin, double size, double view, double marginAfter) {
    const double room = view - CanvasViewport::sideMargin - marginAfter;
    if (size <= room)
        return CanvasViewport::sideMargin + (room - size) / 2;
    return std::clamp(origin, view - marginAfter - size, CanvasViewport::sideMargin);
}

} // namespace

void CanvasViewport::setView(QSizeF size, double displayScale) {
    const QPointF middle = toImage(center());
    m_view = size.expandedTo({1, 1});
    m_displayScale = displayScale;
    if (m_isFit)
        return fit();
    place(center() - (middle - m_content.topLeft()) * zoom());
}

void CanvasViewport::setContent(const QRectF &content) {
    const QPointF shown = toView(content.topLeft());
    m_content = content;
    if (m_isFit)
        return fit();
    place(shown);
}

double CanvasViewport::fitScale() const {
    const double width = std::max(m_view.width() - 2 * sideMargin, 1.0);
    const double height = std::max(m_view.height() - sideMargin - bottomMargin, 1.0);
    return std::min(
        {width / m_content.width() * m_displayScale, height / m_content.height() * m_displayScale, 1.0});
}

double CanvasViewport::smallestScale() const {
    return std::min(fitScale(), 0.05);
}

void CanvasViewport::fit() {
    m_isFit = true;
    m_scale = fitScale();
    place(QPointF());
}

QPointF CanvasViewport::onPixels(QPointF point) const {
    return {std::round(point.x() * m_displayScale) / m_displayScale,
            std::round(point.y() * m_displayScale) / m_displayScale};
}

void CanvasViewport::setScale(double scale, QPointF anchor) {
    const QPointF kept = (anchor - m_exactOrigin) / zoom();
    m_isFit = false;
    m_scale = std::clamp(scale, smallestScale(), largestScale);
    place(anchor - kept * zoom());
}

void CanvasViewport::pan(QPointF delta) {
    m_isFit = false;
    place(m_exactOrigin + delta);
}

void CanvasViewport::reveal(const QRectF &rect) {
    if (m_isFit)
        return;
    const QRectF room(sideMargin, sideMargin, m_view.width() - 2 * sideMargin,
                      m_view.height() - sideMargin - bottomMargin);
    const QRectF shown = toView(rect);
    const auto way = [](double low, double high, double least, double most) {
        if (low >= least && high <= most)
            return 0.0;
        return high - low > most - least || low < least ? least - low : most - high;
    };
    const QPointF delta(way(shown.left(), shown.right(), room.left(), room.right()),
                        way(shown.top(), shown.bottom(), room.top(), room.bottom()));
    if (!delta.isNull())
        pan(delta);
}

void CanvasViewport::place(QPointF origin) {
    const QSizeF size = m_content.size() * zoom();
    const double x = placed(origin.x(), size.width(), m_view.width(), sideMargin);
    const double y = placed(origin.y(), size.height(), m_view.height(), bottomMargin);
    m_exactOrigin = {x, y};
    m_origin = onPixels(m_exactOrigin);
}

QPointF CanvasViewport::toImage(QPointF view) const {
    return m_content.topLeft() + (view - m_origin) / zoom();
}

QPointF CanvasViewport::toView(QPointF image) const {
    return m_origin + (image - m_content.topLeft()) * zoom();
}

QRectF CanvasViewport::toView(const QRectF &image) const {
    return {toView(image.topLeft()), image.size() * zoom()};
}

QRectF CanvasViewport::toImage(const QRectF &view) const {
    return {toImage(view.topLeft()), view.size() / zoom()};
}

QTransform CanvasViewport::imageToView() const {
    const QPointF origin = toView(QPointF());
    QTransform transform = QTransform::fromTranslate(origin.x(), origin.y());
    transform.scale(zoom(), zoom());
    return transform;
}

} // namespace tembra
