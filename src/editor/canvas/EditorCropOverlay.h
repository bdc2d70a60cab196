#pragma once

#include "editor/model/EditorCropSession.h"

#include <QWidget>

#include <array>

namespace tembra {

class CanvasViewport;

// Lies over the canvas while a crop is drawn: shades what will be cut away, outlines what is kept and has
// eight handles. View space. The wheel and what it does not know is the canvas's.
class EditorCropOverlay final : public QWidget {
    Q_OBJECT

public:
    // The canvas is the parent. What is handed in must outlive this.
    EditorCropOverlay(EditorCropSession &session, const CanvasViewport &viewport, QWidget *canvas);

    // The crop or what the canvas shows has changed.
    void refresh();
    [[nodiscard]] QRectF cropInView() const { return m_cropInView; }

Q_SIGNALS:
    void changed();
    void applied();
    void cancelled();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] std::optional<int> handleAt(QPointF point) const;
    void updateCursor(QPointF point);
    void nudge(QPointF delta, bool resizes);

    EditorCropSession &m_session;
    const CanvasViewport &m_viewport;
    QRectF m_cropInView;
    // Of the handles, in their order.
    std::array<QPointF, 8> m_points;
};

} // namespace tembra
