#include "platform/linux/desktop/WaylandInputMonitor.h"

#include "platform/linux/desktop/WaylandLayers.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// In which the compositor tells a window that it has the pointer now that another one does not.
constexpr auto handover = 100ms;

} // namespace

WaylandInputMonitor::WaylandInputMonitor(Scheduler &scheduler, std::shared_ptr<WaylandDisplay> display)
    : m_scheduler(scheduler), m_display(std::move(display)) {
    qGuiApp->installEventFilter(this);
}

std::unique_ptr<InputMonitor::Observation>
WaylandInputMonitor::observe(std::function<void(const Event &)> onEvent) {
    return m_observers.add(std::move(onEvent));
}

ScreenPoint WaylandInputMonitor::pointer() const {
    const bool isHere = m_window && (m_isDragging || m_display->hasPointer() || m_loss.isPending());
    return isHere ? ScreenPoint{m_point.x(), m_point.y()} : away();
}

// Of the screen where the pointer was last seen.
ScreenPoint WaylandInputMonitor::away() const {
    const QScreen *screen = QGuiApplication::screenAt(m_point.toPoint());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect frame = screen ? screen->geometry() : QRect();
    return {static_cast<double>(frame.left()), static_cast<double>(frame.bottom())};
}

bool WaylandInputMonitor::eventFilter(QObject *receiver, QEvent *event) {
    // Qt gives each event to the window first and then to the widgets in it.
    if (receiver->isWindowType())
        receive(static_cast<QWindow &>(*receiver), *event);
    return false;
}

void WaylandInputMonitor::receive(QWindow &window, QEvent &event) {
    switch (event.type()) {
    case QEvent::Enter:
        return entered(window, static_cast<const QEnterEvent &>(event).globalPosition());
    case QEvent::Leave:
        return left(window);
    case QEvent::Hide:
        return vanished(window);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return receiveMouse(window, static_cast<const QMouseEvent &>(event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return receiveDrag(window, static_cast<const QDropEvent &>(event));
    case QEvent::DragLeave:
        left(window);
        return endDrag();
    default:
        return;
    }
}

void WaylandInputMonitor::entered(QWindow &window, QPointF point) {
    m_loss.cancel();
    m_isDragging = false;
    m_window = WaylandLayers::isPlaced(window) ? &window : nullptr;
    if (m_window)
        m_point = point;
}

void WaylandInputMonitor::left(const QWindow &window) {
    if (m_window != &window)
        return;
    m_window.clear();
    expectLoss();
}

// Nobody says whose the pointer is then, unless it is ours.
void WaylandInputMonitor::vanished(const QWindow &window) {
    if (m_window == &window)
        expectLoss();
}

void WaylandInputMonitor::expectLoss() {
    m_loss = m_scheduler.schedule(handover, [this] {
        m_window.clear();
        report(Kind::moved, false);
    });
}

void WaylandInputMonitor::receiveMouse(QWindow &window, const QMouseEvent &event) {
    entered(window, event.globalPosition());
    if (event.type() == QEvent::MouseMove) {
        if (event.buttons().testFlag(Qt::LeftButton))
            report(Kind::leftDragged, true);
        return;
    }
    const bool isDown = event.type() == QEvent::MouseButtonPress;
    if (event.button() == Qt::LeftButton)
        report(isDown ? Kind::leftDown : Kind::leftUp, true);
    else if (event.button() == Qt::RightButton && isDown)
        report(Kind::rightDown, true);
}

// What is dragged comes from elsewhere, where its button went down.
void WaylandInputMonitor::receiveDrag(QWindow &window, const QDropEvent &event) {
    const bool isForeign = event.source() == nullptr;
    m_dragEnd.cancel();
    if (isForeign && !m_isDragOffered) {
        m_window.clear();
        report(Kind::leftDown, false);
    }
    entered(window, window.mapToGlobal(event.position()));
    m_isDragging = true;
    if (!isForeign)
        return;
    m_isDragOffered = true;
    report(Kind::leftDragged, false);
    if (event.type() == QEvent::Drop)
        endDrag();
}

// A drag that leaves one of our windows may go on in the next.
void WaylandInputMonitor::endDrag() {
    if (!m_isDragOffered)
        return;
    m_dragEnd = m_scheduler.schedule(handover, [this] {
        // Who hears of the release may still ask what was dragged until then.
        report(Kind::leftUp, false);
        m_isDragOffered = false;
    });
}

void WaylandInputMonitor::report(Kind kind, bool isLocal) {
    m_observers.notify({kind, pointer(), isLocal});
}

} // namespace tembra
