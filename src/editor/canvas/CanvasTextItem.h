#pragma once

#include "editor/model/ScreenshotAnnotation.h"

#include <QGraphicsTextItem>

class QMimeData;

namespace tembra {

// The text of an annotation while it is typed: laid out as it will be drawn (AnnotationText.h), in image
// space from the top left of its box. Only plain text goes in. Main thread.
class CanvasTextItem final : public QGraphicsTextItem {
    Q_OBJECT

public:
    explicit CanvasTextItem(ScreenshotAnnotation annotation);

    // With what has been typed.
    [[nodiscard]] const ScreenshotAnnotation &annotation() const { return m_annotation; }
    // Takes another style; the text stays.
    void restyle(const ScreenshotAnnotation &annotation);
    // With what an input method is composing.
    [[nodiscard]] EditorText shownText() const;
    // Of that.
    [[nodiscard]] QSizeF boxSize() const { return m_boxSize; }

    // Without the frame of an item that has the focus: the editor draws its own.
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

Q_SIGNALS:
    void boxChanged();
    void finished();

protected:
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;
    void dropEvent(QGraphicsSceneDragDropEvent *event) override;

private:
    void applyStyle();
    void typed();
    void layOut();
    void insertPlain(const QMimeData *data);

    ScreenshotAnnotation m_annotation;
    QSizeF m_boxSize;
};

} // namespace tembra
