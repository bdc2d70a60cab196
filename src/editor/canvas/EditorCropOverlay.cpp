#include "editor/canvas/EditorCropOverlay.h"

#include "editor/canvas/CanvasViewport.h"
#include "editor/canvas/HandleCursors.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace tembra {

namespace {

void drawThirds(QPainter &painter, const QRectF &crop) {
    painter.setPen(QPen(QColor(255, 255, 255, 70), 1));
    for (const double part : {1 / 3.0, 2 / 3.0}) {
        const double x = crop.left() + crop.width() * part;
        const double y = crop.top() + crop.height() * part;
        painter.drawLine(QPointF(x, crop.top()), QPointF(x, crop.bottom()));
        painter.drawLine(QPointF(crop.left(), y), QPointF(crop.right(), y));
    }
}

// A short bar along the edge, or two at a corner.
QPainterPath gripAt(QPointF point, int handle) {
    constexpr double length = 14;
    const double x = handle == 0 || handle >= 6 ? 1 : handle >= 2 && handle <= 4 ? -1 : 0;
    const double y = handle <= 2 ? 1 : handle >= 4 && handle <= 6 ? -1 : 0;
    QPainterPath path;
    if (x != 0 && y != 0) {
        path.moveTo(point + QPointF(0, y * length));
        path.lineTo(point);
        path.lineTo(point + QPointF(x * length, 0));
        return path;
    }
    const QPointF along = x == 0 ? QPointF(length / 2, 0) : QPointF(0, length / 2);
    path.moveTo(point - along);
    path.lineTo(point + along);
    return path;
}

} // namespace

EditorCropOverlay::EditorCropOverlay(EditorCropSession &session, const CanvasViewport &viewport,
                                     QWidget *canvas)
    : QWidget(canvas), m_session(session), m_viewport(viewport) {
    setAccessibleName(tr("Crop"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setGeometry(canvas->rect());
    refresh();
    show();
    setFocus();
}

void EditorCropOverlay::refresh() {
    setGeometry(QRect(QPoint(), m_viewport.viewSize().toSize()));
    m_cropInView = m_viewport.toView(m_session.rect());
    m_points = EditorCropSession::handlePositions(m_cropInView);
    setAccessibleDescription(tr("%1 by %2 pixels, from %3, %4")
                                 .arg(m_session.rect().width())
                                 .arg(m_session.rect().height())
                                 .arg(m_session.rect().x())
                                 .arg(m_session.rect().y()));
    update();
}

void EditorCropOverlay::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QPainterPath shade;
    shade.addRect(rect());
    shade.addRect(m_cropInView);
    painter.fillPath(shade, QColor(0, 0, 0, 150));
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_session.isDragging())
        drawThirds(painter, m_cropInView);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 3));
    painter.drawRect(m_cropInView);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(m_cropInView);
    for (const bool isShade : {true, false}) {
        painter.setPen(QPen(isShade ? QColor(0, 0, 0, 110) : QColor(Qt::white), isShade ? 6 : 4,
                            Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
        for (int handle = 0; handle < 8; ++handle)
            painter.drawPath(gripAt(m_points[static_cast<std::size_t>(handle)], handle));
    }
}

std::optional<int> EditorCropOverlay::handleAt(QPointF point) const {
    return EditorCropSession::handleAt(point, m_points);
}

void EditorCropOverlay::updateCursor(QPointF point) {
    if (const auto handle = handleAt(point))
        setCursor(cursorOfRectHandle(*handle));
    else
        setCursor(m_cropInView.contains(point) ? Qt::SizeAllCursor : Qt::ArrowCursor);
}

void EditorCropOverlay::mousePressEvent(QMouseEvent *event) {
    const auto handle = handleAt(event->position());
    const bool isOurs =
        event->button() == Qt::LeftButton && (handle || m_cropInView.contains(event->position()));
    if (!isOurs)
        return event->ignore();
    m_session.beginDrag(m_viewport.toImage(event->position()), handle);
    update();
}

void EditorCropOverlay::mouseMoveEvent(QMouseEvent *event) {
    if (!m_session.isDragging()) {
        updateCursor(event->position());
        return event->ignore();
    }
    m_session.drag(m_viewport.toImage(event->position()));
    refresh();
    Q_EMIT changed();
}

void EditorCropOverlay::mouseReleaseEvent(QMouseEvent *event) {
    if (!m_session.isDragging())
        return event->ignore();
    m_session.endDrag();
    refresh();
}

void EditorCropOverlay::mouseDoubleClickEvent(QMouseEvent *event) {
    if (m_cropInView.contains(event->position()) && !handleAt(event->position()))
        Q_EMIT applied();
    else
        mousePressEvent(event);
}

void EditorCropOverlay::keyPressEvent(QKeyEvent *event) {
    const double step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    const bool resizes = event->modifiers() & Qt::AltModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT applied();
        return;
    case Qt::Key_Escape:
        Q_EMIT cancelled();
        return;
    case Qt::Key_Left:
        return nudge({-step, 0}, resizes);
    case Qt::Key_Right:
        return nudge({step, 0}, resizes);
    case Qt::Key_Up:
        return nudge({0, -step}, resizes);
    case Qt::Key_Down:
        return nudge({0, step}, resizes);
    default:
        event->ignore();
    }
}

// Moves the whole, or the bottom right corner.
void EditorCropOverlay::nudge(QPointF delta, bool resizes) {
    const QPointF start = m_session.rect().bottomRight();
    m_session.beginDrag(start, resizes ? std::optional(4) : std::nullopt);
    m_session.drag(start + delta);
    m_session.endDrag();
    refresh();
    Q_EMIT changed();
}

} // namespace tembra
