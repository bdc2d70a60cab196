#include "shelf/ShelfButton.h"

#include "controls/FocusRing.h"
#include "controls/Palette.h"
#include "controls/TembraToolTip.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QPainter>

namespace tembra {

namespace {

constexpr qreal iconSide = 16;
constexpr qreal cornerRadius = 7;

} // namespace

ShelfButton::ShelfButton(Kind kind, Icon icon, const QString &name, QWidget *parent)
    : QAbstractButton(parent), m_kind(kind), m_icon(icon) {
    setCheckable(kind == Kind::tab);
    connect(this, &QAbstractButton::toggled, this, [this] {
        QAccessibleEvent event(this, QAccessible::Selection);
        QAccessible::updateAccessibility(&event);
    });
    setAccessibleName(name);
    TembraToolTip::set(*this, name);
    setFocusPolicy(Qt::TabFocus);
    resize(fieldSize);
}

void ShelfButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool isActive = isChecked() || isDown();
    if (isActive || underMouse()) {
        painter.setBrush(isActive ? palette::groupActive : palette::groupHovered);
        painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    }
    drawIcon(painter, m_icon, rect(), iconSide, isActive ? palette::iconActive : palette::icon);
    if (hasFocus())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), cornerRadius - 1);
}

void ShelfButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ShelfButton::enterEvent(QEnterEvent *event) {
    QAbstractButton::enterEvent(event);
    update();
    Q_EMIT entered();
}

void ShelfButton::leaveEvent(QEvent *event) {
    QAbstractButton::leaveEvent(event);
    update();
    Q_EMIT left();
}

void ShelfButton::dragEnterEvent(QDragEnterEvent *event) {
    if (canReceive && !canReceive(*event->mimeData()))
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT draggedOver();
}

void ShelfButton::dragLeaveEvent(QDragLeaveEvent *) {
    Q_EMIT left();
}

void ShelfButton::dropEvent(QDropEvent *event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT left();
    Q_EMIT dropped(event->mimeData());
}

} // namespace tembra
