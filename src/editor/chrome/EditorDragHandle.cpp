#include "editor/chrome/EditorDragHandle.h"

#include "controls/TembraToolTip.h"

#include <QApplication>
#include <QMouseEvent>

namespace tembra {

EditorDragHandle::EditorDragHandle(QWidget *parent)
    : EditorIconButton(Icon::dragOut, Size::small, tr("Drag image"), parent) {
    setCursor(Qt::OpenHandCursor);
    setAccessibleDescription(tr("Copies the image when pressed by a key"));
    TembraToolTip::set(*this, tr("Drag the image into another window"));
    // By a key or an assistive program; the pointer's presses do not get so far.
    connect(this, &QAbstractButton::clicked, this, &EditorDragHandle::copyRequested);
}

void EditorDragHandle::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_press = event->pos();
    setDown(true);
}

void EditorDragHandle::mouseMoveEvent(QMouseEvent *event) {
    if (!m_press || (event->pos() - *m_press).manhattanLength() < QApplication::startDragDistance())
        return;
    m_press.reset();
    setDown(false);
    Q_EMIT dragRequested();
}

void EditorDragHandle::mouseReleaseEvent(QMouseEvent *) {
    m_press.reset();
    setDown(false);
}

} // namespace tembra
