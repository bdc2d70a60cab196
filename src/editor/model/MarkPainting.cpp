#include "editor/model/MarkPainting.h"

#include "editor/model/ContrastColor.h"
#include "editor/model/GrownRect.h"

#include <QImage>
#include <QPaintDevice>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

// Of the halo at the shape, and what each layer has of it from the outermost inwards.
constexpr double lightest = 0.52;
constexpr std::array layerParts{0.22, 0.34, 0.5};

// One side of a polygon's clipping (Sutherland and Hodgman): what lies where `depth` is positive.
template <typename Depth>
QPolygonF cut(const QPolygonF &polygon, Depth depth) {
    QPolygonF result;
    for (qsizetype at = 0; at < polygon.size(); ++at) {
        const QPointF from = polygon[at];
        const QPointF to = polygon[(at + 1) % polygon.size()];
        const double before = depth(from);
        const double after = depth(to);
        if (before >= 0)
            result += from;
        if ((before >= 0) != (after >= 0))
            result += from + (to - from) * (before / (before - after));
    }
    return result;
}

// The same where it is seen, for a shape that reaches so far that the rasteriser would take its time.
QPainterPath withinReach(const QPainterPath &shape, const QRectF &visible) {
    const double margin = std::max(visible.width(), visible.height());
    const QRectF kept = grown(visible, margin);
    const QRectF tolerated = grown(kept, 4 * margin);
    if (tolerated.contains(shape.boundingRect()))
        return shape;
    QPainterPath result;
    result.setFillRule(shape.fillRule());
    for (QPolygonF polygon : shape.toSubpathPolygons()) {
        polygon = cut(polygon, [&](QPointF point) { return point.x() - kept.left(); });
        polygon = cut(polygon, [&](QPointF point) { return kept.right() - point.x(); });
        polygon = cut(polygon, [&](QPointF point) { return point.y() - kept.top(); });
        polygon = cut(polygon, [&](QPointF point) { return kept.bottom() - point.y(); });
        result.addPolygon(polygon);
        result.closeSubpath();
    }
    return result;
}

// The shade around a colour is the deeper the lighter the colour is.
double haloOpacity(const EditorColor &color, bool isLight) {
    return isLight ? lightest : 0.16 + 0.26 * relativeLuminance(color);
}

// Layers of which each is a little larger than the one above it fade outwards.
void drawLayers(QPainter &painter, const Mark &mark, const QRectF &visible) {
    const EditorColor edge = contrasting(mark.color);
    const double opacity = haloOpacity(mark.color, relativeLuminance(edge) > 0.5) * mark.haloStrength *
                           std::min(mark.color.a, 1.0);
    QColor color = edge.toColor();
    const int count = static_cast<int>(layerParts.size());
    for (int layer = 0; layer < count; ++layer) {
        color.setAlphaF(static_cast<float>(opacity * layerParts.at(layer)));
        const double growth = mark.haloWidth * (count - layer) / count;
        painter.fillPath(withinReach(mark.grown(growth), visible), color);
    }
}

QRect deviceRect(const QPainter &painter) {
    const QPaintDevice &device = *painter.device();
    const double ratio = device.devicePixelRatioF();
    return QRectF(0, 0, device.width() * ratio, device.height() * ratio).toAlignedRect();
}

QRectF reach(const Mark &mark) {
    return grown(mark.shape.boundingRect(), mark.haloWidth);
}

// The halo without what lies beneath the shape, made on a layer of its own.
void drawHaloAround(QPainter &painter, const Mark &mark, const QRectF &visible) {
    const QTransform toDevice = painter.combinedTransform();
    const QRectF wanted = toDevice.mapRect(reach(mark) & visible);
    const QRect area = wanted.toAlignedRect().adjusted(-1, -1, 1, 1) & deviceRect(painter);
    if (area.isEmpty())
        return;
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull())
        return;
    layer.fill(Qt::transparent);
    QPainter inLayer(&layer);
    inLayer.setRenderHint(QPainter::Antialiasing);
    inLayer.setTransform(toDevice * QTransform::fromTranslate(-area.x(), -area.y()));
    drawLayers(inLayer, mark, visible);
    inLayer.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    inLayer.fillPath(withinReach(mark.shape, visible), Qt::black);
    inLayer.end();
    const double ratio = painter.device()->devicePixelRatioF();
    layer.setDevicePixelRatio(ratio);
    painter.save();
    painter.resetTransform();
    painter.drawImage(QPointF(area.topLeft()) / ratio, layer);
    painter.restore();
}

} // namespace

void Mark::draw(QPainter &painter) const {
    drawHalo(painter);
    drawShape(painter);
}

void Mark::drawHalo(QPainter &painter) const {
    const QRectF visible = visibleRect(painter);
    const bool isThere = grown && haloStrength > 0 && color.a > 0;
    if (!isThere || shape.isEmpty() || !reach(*this).intersects(visible))
        return;
    if (color.a >= 1)
        drawLayers(painter, *this, visible);
    else
        drawHaloAround(painter, *this, visible);
}

void Mark::drawShape(QPainter &painter) const {
    const QRectF visible = visibleRect(painter);
    if (color.a > 0 && shape.boundingRect().intersects(visible))
        painter.fillPath(withinReach(shape, visible), color.toColor());
}

QRectF visibleRect(const QPainter &painter) {
    bool isInvertible = false;
    const QTransform fromDevice = painter.combinedTransform().inverted(&isInvertible);
    if (!isInvertible)
        return {};
    const QRectF all = fromDevice.mapRect(QRectF(deviceRect(painter)));
    return painter.hasClipping() ? all & painter.clipBoundingRect() : all;
}

} // namespace tembra
