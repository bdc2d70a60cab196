#include "editor/model/MarkPainting.h"

#include "editor/model/ContrastColor.h"

#include <QImage>
#include <QPaintDevice>
#include <QPen>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

// Strokes of these parts of the halo's width and of these alphas, one over the other, fade outwards.
struct Layer {
    double part;
    double alpha;
};
constexpr std::array lightLayers{Layer{1.0, 0.18}, Layer{0.72, 0.24}, Layer{0.42, 0.24}};
constexpr std::array darkLayers{Layer{1.0, 0.10}, Layer{0.72, 0.14}, Layer{0.42, 0.16}};

void drawHalo(QPainter &painter, const Mark &mark) {
    const EditorColor edge = contrasting(mark.color);
    const bool isLight = relativeLuminance(edge) > 0.5;
    for (const Layer &layer : isLight ? lightLayers : darkLayers) {
        QColor color = edge.toColor();
        color.setAlphaF(
            static_cast<float>(layer.alpha * mark.haloStrength * std::clamp(mark.color.a, 0.0, 1.0)));
        painter.strokePath(mark.shape, QPen(color, 2 * layer.part * mark.haloWidth, Qt::SolidLine,
                                            Qt::RoundCap, Qt::RoundJoin));
    }
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
