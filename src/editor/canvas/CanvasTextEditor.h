#pragma once

#include "editor/canvas/CanvasTextItem.h"
#include "editor/canvas/CanvasViewport.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QTextDocument>

namespace tembra {

// Lets the user type a text annotation in its place: lies over the canvas, which is its parent, as long as
// the typing lasts. What is pressed beside the text is the canvas's.
class CanvasTextEditor final : public QGraphicsView {
    Q_OBJECT

public:
    CanvasTextEditor(const ScreenshotAnnotation &annotation, const CanvasViewport &viewport, QWidget *canvas);

    // With what has been typed.
    [[nodiscard]] const ScreenshotAnnotation &annotation() const { return m_item->annotation(); }
    void restyle(const ScreenshotAnnotation &annotation) { m_item->restyle(annotation); }
    void setViewport(const CanvasViewport &viewport);
    // Of the typing.
    void undo() { m_item->document()->undo(); }
    void redo() { m_item->document()->redo(); }
    // Of the text's box. Image space.
    [[nodiscard]] QRectF box() const;

Q_SIGNALS:
    // By Escape, Ctrl+Return or Tab.
    void finished();

protected:
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QGraphicsScene m_scene;
    CanvasTextItem *m_item;
};

} // namespace tembra
