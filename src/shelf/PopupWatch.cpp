#include "shelf/PopupWatch.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace tembra {

PopupWatch::PopupWatch() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PopupWatch::isPopupOpen() {
    return QApplication::activePopupWidget() != nullptr;
}

bool PopupWatch::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::Hide || !onClosed)
        return false;
    const auto *const widget = qobject_cast<QWidget *>(watched);
    if (widget && widget->windowType() == Qt::Popup)
        onClosed();
    return false;
}

} // namespace tembra
