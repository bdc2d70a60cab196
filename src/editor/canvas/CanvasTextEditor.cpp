#include "editor/canvas/CanvasTextEditor.h"

#include "controls/Palette.h"
#include "editor/model/AnnotationText.h"
#include "editor/model/GrownRect.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QTextCursor>

namespace tembra {

CanvasTextEditor::CanvasTextEditor(const ScreenshotAnnotation &annotation, const CanvasViewport &viewport,
                                   QWidget *canvas)
    : QGraphicsView(canvas), m_item(new CanvasTextItem(annotation)) {
    setAccessibleName(tr("Text"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setRenderHint(QPainter::Antialiasing);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setStyleSheet(QStringLiteral("background: transparent"));
    m_scene.addItem(m_item);
    setScene(&m_scene);
    setViewport(viewport);
    m_scene.setFocusItem(m_item);
    QTextCursor cursor = m_item->textCursor();
    cursor.movePosition(QTextCursor::End);
    m_item->setTextCursor(cursor);
    connect(m_item, &CanvasTextItem::finished, this, &CanvasTextEditor::finished);
    connect(m_item, &CanvasTextItem::boxChanged, this, [this] { this->viewport()->update(); });
    setGeometry(canvas->rect());
    show();
    setFocus();
}

void CanvasTextEditor::setViewport(const CanvasViewport &viewport) {
    const QRectF seen = viewport.toImage(QRectF(QPointF(), viewport.viewSize()));
    setGeometry(QRect(QPoint(), viewport.viewSize().toSize()));
    // The scene is as large as the view at this zoom, so that nothing scrolls.
    m_scene.setSceneRect(seen);
    setTransform(QTransform::fromScale(viewport.zoom(), viewport.zoom()));
    horizontalScrollBar()->setValue(horizontalScrollBar()->minimum());
    verticalScrollBar()->setValue(verticalScrollBar()->minimum());
}

QRectF CanvasTextEditor::box() const {
    return {annotation().points[0].toPointF(), m_item->boxSize()};
}

void CanvasTextEditor::drawBackground(QPainter *painter, const QRectF &) {
    const AnnotationText text(m_item->shownText());
    const QPainterPath outline = text.box(annotation().points[0].toPointF());
    painter->fillPath(outline, annotation().text->background.toColor());
    QPen pen(palette::accent, 1.5);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    const double gap = 2 / transform().m11();
    painter->drawPath(outline);
    painter->setOpacity(0.35);
    painter->drawRect(grown(outline.boundingRect(), gap));
    painter->setOpacity(1);
}

// Beside the box the press ends the typing and does what it does on the canvas.
void CanvasTextEditor::mousePressEvent(QMouseEvent *event) {
    if (!box().contains(mapToScene(event->position().toPoint())))
        return event->ignore();
    QGraphicsView::mousePressEvent(event);
    event->accept();
}

void CanvasTextEditor::wheelEvent(QWheelEvent *event) {
    event->ignore();
}

} // namespace tembra
