#include "controls/KeyboardFocus.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

namespace tembra {

namespace {

// It leads nowhere by itself, as when it is held for a shortcut or a click.
bool isModifier(const QKeyEvent &event) {
    switch (event.key()) {
    case Qt::Key_Control:
    case Qt::Key_Shift:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return true;
    default:
        return false;
    }
}

} // namespace

KeyboardFocus::KeyboardFocus(QWidget &widget) : m_widget(widget) {
    widget.installEventFilter(this);
}

void KeyboardFocus::setShown(bool isShown) {
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    m_widget.update();
}

bool KeyboardFocus::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // A window or popup that comes between does not change how the focus came here.
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
            break;
        const bool isFromKeyboard = reason != Qt::MouseFocusReason && reason != Qt::OtherFocusReason;
        setShown(event->type() == QEvent::FocusIn && isFromKeyboard);
        break;
    }
    case QEvent::KeyPress:
        if (!isModifier(*static_cast<QKeyEvent *>(event)))
            setShown(m_widget.hasFocus());
        break;
    case QEvent::MouseButtonPress:
        setShown(false);
        break;
    default:
        break;
    }
    return false;
}

} // namespace tembra
