#include "platform/linux/desktop/QtInputMonitor.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>

namespace tembra {

QtInputMonitor::QtInputMonitor() : m_observers([this] { updateFilter(); }) {}

std::unique_ptr<InputMonitor::Observation>
QtInputMonitor::observe(std::function<void(const Event &)> onEvent) {
    return m_observers.add(std::move(onEvent));
}

bool QtInputMonitor::isForeignDragOffered() const {
    return false;
}

ScreenPoint QtInputMonitor::pointer() const {
    const QPoint position = QCursor::pos();
    return {static_cast<double>(position.x()), static_cast<double>(position.y())};
}

bool QtInputMonitor::eventFilter(QObject *receiver, QEvent *event) {
    // Qt gives each event to the window first and then to the widgets in it.
    if (receiver->isWindowType()) {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
            type == QEvent::MouseMove)
            receive(static_cast<const QMouseEvent &>(*event));
    }
    return false;
}

void QtInputMonitor::updateFilter() {
    qGuiApp->removeEventFilter(this);
    if (!m_observers.isEmpty())
        qGuiApp->installEventFilter(this);
}

void QtInputMonitor::receive(const QMouseEvent &event) {
    if (event.type() == QEvent::MouseMove) {
        if (event.buttons().testFlag(Qt::LeftButton))
            report(Kind::leftDragged, event);
        return;
    }
    const bool isDown = event.type() == QEvent::MouseButtonPress;
    if (event.button() == Qt::LeftButton)
        report(isDown ? Kind::leftDown : Kind::leftUp, event);
    else if (event.button() == Qt::RightButton && isDown)
        report(Kind::rightDown, event);
}

void QtInputMonitor::report(Kind kind, const QMouseEvent &event) {
    const QPointF position = event.globalPosition();
    const bool isInside = QGuiApplication::topLevelAt(position.toPoint()) != nullptr;
    m_observers.notify({kind, {position.x(), position.y()}, isInside});
}

} // namespace tembra
