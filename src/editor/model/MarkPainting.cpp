#include "editor/model/MarkPainting.h"

#include "editor/model/ContrastColor.h"

#include <QImage>
#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// The opacity of the halo at the shape.
constexpr double lightest = 0.52;
constexpr double darkest = 0.36;

// Layers of which each is a little larger than the one above it fade outwards.
void drawHalo(QPainter &painter, const Mark &mark) {
    const EditorColor edge = contrasting(mark.color);
    const double opacity = (relativeLuminance(edge) > 0.5 ? lightest : darkest) * mark.haloStrength *
                           std::min(mark.color.a, 1.0);
    const int layers = std::clamp(qRound(mark.haloWidth / 1.2), 2, 5);
    QColor color = edge.toColor();
    color.setAlphaF(static_cast<float>(1 - std::pow(1 - opacity, 1.0 / layers)));
    for (int layer = layers; layer > 0; --layer)
        painter.fillPath(mark.grown(mark.haloWidth * layer / layers), color);
}

QRect deviceRect(const QPainter &painter) {
    const QPaintDevice &device = *painter.device();
    const double ratio = device.devicePixelRatioF();
    return QRectF(0, 0, device.width() * ratio, device.height() * ratio).toAlignedRect();
}

QRectF reach(const Mark &mark) {
    const double margin = mark.haloWidth;
    return mark.shape.boundingRect().adjusted(-margin, -margin, margin, margin);
}

// The halo without what lies beneath the shape, made on a layer of its own.
void drawHaloAround(QPainter &painter, const Mark &mark) {
    const QTransform toDevice = painter.combinedTransform();
    const QRectF wanted = toDevice.mapRect(reach(mark) & visibleRect(painter));
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
    drawHalo(inLayer, mark);
    inLayer.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    inLayer.fillPath(mark.shape, Qt::black);
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
    if (shape.isEmpty() || !(color.a > 0))
        return;
    if (haloWidth > 0 && haloStrength > 0) {
        if (color.a >= 1)
            drawHalo(painter, *this);
        else
            drawHaloAround(painter, *this);
    }
    painter.fillPath(shape, color.toColor());
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
