#pragma once

#include "editor/canvas/CanvasScene.h"

#include <QPainter>

namespace tembra {

// Paints what lies around and behind the image: a plain field with faint dots, the image's shadow and, where
// the image lets it through, a chequerboard. View space.
void drawCanvasBackground(QPainter &painter, const CanvasScene &scene);

// Paints an area with the chequerboard that stands for nothing.
void drawChequerboard(QPainter &painter, const QRectF &area, const CanvasViewport &viewport);

// Paints the lines between the image's pixels, once they are far enough apart; faint, in view space.
void drawPixelGrid(QPainter &painter, const CanvasViewport &viewport, const QRectF &exposed);

} // namespace tembra
