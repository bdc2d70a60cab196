#include "editor/canvas/CanvasBackground.h"

#include "editor/model/GrownRect.h"

#include <cmath>

namespace tembra {

namespace {

constexpr int dotDistance = 22;
constexpr int chequerSide = 8;
// The display's pixels for a pixel of the image.
constexpr double gridScale = 10;

void drawDots(QPainter &painter, QSizeF view, const QColor &field, const QColor &color) {
    QImage tile(dotDistance, dotDistance, QImage::Format_RGB32);
    tile.fill(field);
    QPainter(&tile).fillRect(dotDistance / 2, dotDistance / 2, 1, 1, color);
    painter.fillRect(QRectF(QPointF(), view), QBrush(tile));
}

// Rings that grow fainter outwards, their corners left open: strips are quick to fill.
void drawShadow(QPainter &painter, const QRectF &image) {
    constexpr int reach = 16;
    constexpr double strength = 0.16;
    const QRectF place = image.translated(0, 3);
    painter.fillRect(place, QColor::fromRgbF(0, 0, 0, static_cast<float>(strength)));
    for (int distance = 1; distance <= reach; ++distance) {
        const double rest = 1 - static_cast<double>(distance) / (reach + 1);
        const QColor shade = QColor::fromRgbF(0, 0, 0, static_cast<float>(strength * rest * rest));
        const QRectF ring = grown(place, distance);
        const double corner = distance * 0.6;
        const double width = ring.width() - 2 * corner;
        const double height = ring.height() - 2 * corner;
        painter.fillRect(QRectF(ring.left() + corner, ring.top(), width, 1), shade);
        painter.fillRect(QRectF(ring.left() + corner, ring.bottom() - 1, width, 1), shade);
        painter.fillRect(QRectF(ring.left(), ring.top() + corner, 1, height), shade);
        painter.fillRect(QRectF(ring.right() - 1, ring.top() + corner, 1, height), shade);
    }
}

} // namespace

void drawCanvasBackground(QPainter &painter, const CanvasScene &scene) {
    const QSizeF view = scene.viewport.viewSize();
    drawDots(painter, view, scene.background, scene.dots);
    const QRectF image = scene.viewport.toView(scene.viewport.content());
    drawShadow(painter, image);
    const bool isTransparent =
        scene.image && !scene.image->isNull() && scene.image->level(0).image.hasAlphaChannel();
    if (isTransparent)
        drawChequerboard(painter, image & QRectF(QPointF(), view), scene.viewport);
}

void drawChequerboard(QPainter &painter, const QRectF &area, const CanvasViewport &viewport) {
    QImage tile(2 * chequerSide, 2 * chequerSide, QImage::Format_RGB32);
    tile.fill(QColor(255, 255, 255));
    QPainter tilePainter(&tile);
    tilePainter.fillRect(0, 0, chequerSide, chequerSide, QColor(226, 226, 230));
    tilePainter.fillRect(chequerSide, chequerSide, chequerSide, chequerSide, QColor(226, 226, 230));
    tilePainter.end();
    painter.setBrushOrigin(viewport.toView(viewport.content()).topLeft());
    painter.fillRect(area, QBrush(tile));
}

void drawPixelGrid(QPainter &painter, const CanvasViewport &viewport, const QRectF &exposed) {
    if (viewport.scale() < gridScale)
        return;
    const QRectF seen = viewport.toImage(exposed) & viewport.content();
    const double least = 1 / viewport.displayScale();
    for (const QColor &color : {QColor(0, 0, 0, 38), QColor(255, 255, 255, 26)}) {
        const double shift = color.red() == 0 ? 0 : least;
        for (double x = std::ceil(seen.left()); x <= seen.right(); ++x) {
            const QPointF top = viewport.toView(QPointF(x, seen.top()));
            painter.fillRect(QRectF(top.x() + shift, top.y(), least, seen.height() * viewport.zoom()), color);
        }
        for (double y = std::ceil(seen.top()); y <= seen.bottom(); ++y) {
            const QPointF left = viewport.toView(QPointF(seen.left(), y));
            painter.fillRect(QRectF(left.x(), left.y() + shift, seen.width() * viewport.zoom(), least),
                             color);
        }
    }
}

} // namespace tembra
