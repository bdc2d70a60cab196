#include "editor/canvas/CanvasBackground.h"

#include "editor/model/GrownRect.h"

#include <QtMath>

#include <array>
#include <utility>

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

// What the shadow is at a distance from the image's edge, from 0 to 1.
void fadeOut(QGradient &gradient) {
    constexpr double strength = 0.18;
    constexpr int stops = 4;
    for (int stop = 0; stop <= stops; ++stop) {
        const double rest = 1 - static_cast<double>(stop) / stops;
        gradient.setColorAt(1 - rest, QColor::fromRgbF(0, 0, 0, static_cast<float>(strength * rest * rest)));
    }
}

// Fades along the edges, and around the corners.
void drawShadow(QPainter &painter, const QRectF &image) {
    constexpr double reach = 18;
    const QRectF place = image.translated(0, 3);
    const auto fill = [&](const QRectF &area, QPointF from, QPointF to) {
        QLinearGradient gradient(from, to);
        fadeOut(gradient);
        painter.fillRect(area, gradient);
    };
    const QPointF across(reach, 0);
    const QPointF down(0, reach);
    fill({place.topLeft() - across, place.bottomLeft()}, place.topLeft(), place.topLeft() - across);
    fill({place.topRight(), place.bottomRight() + across}, place.topRight(), place.topRight() + across);
    fill({place.topLeft() - down, place.topRight()}, place.topLeft(), place.topLeft() - down);
    // From the image on, below which the shadow shows.
    const QRectF bottom(image.bottomLeft(), place.bottomRight());
    painter.fillRect(bottom, QColor::fromRgbF(0, 0, 0, 0.18F));
    fill({place.bottomLeft(), place.bottomRight() + down}, place.bottomLeft(), place.bottomLeft() + down);
    const std::array corners{
        std::pair(place.topLeft(), QPointF(-1, -1)), std::pair(place.topRight(), QPointF(1, -1)),
        std::pair(place.bottomLeft(), QPointF(-1, 1)), std::pair(place.bottomRight(), QPointF(1, 1))};
    for (const auto &[corner, way] : corners) {
        QRadialGradient gradient(corner, reach);
        fadeOut(gradient);
        painter.fillRect(QRectF(corner, corner + way * reach).normalized(), gradient);
    }
}

} // namespace

void drawCanvasBackground(QPainter &painter, const CanvasScene &scene) {
    const QSizeF view = scene.viewport.viewSize();
    drawDots(painter, view, scene.background, scene.dots);
    if (!scene.image || scene.image->isNull())
        return;
    const QRectF image = scene.viewport.toView(scene.viewport.content());
    drawShadow(painter, image);
    if (scene.image->level(0).image.hasAlphaChannel())
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
        for (int x = qCeil(seen.left()); x <= seen.right(); ++x) {
            const QPointF top = viewport.toView(QPointF(x, seen.top()));
            painter.fillRect(QRectF(top.x() + shift, top.y(), least, seen.height() * viewport.zoom()), color);
        }
        for (int y = qCeil(seen.top()); y <= seen.bottom(); ++y) {
            const QPointF left = viewport.toView(QPointF(seen.left(), y));
            painter.fillRect(QRectF(left.x(), left.y() + shift, seen.width() * viewport.zoom(), least),
                             color);
        }
    }
}

} // namespace tembra
