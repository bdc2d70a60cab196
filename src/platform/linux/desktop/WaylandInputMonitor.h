#pragma once

#include "base/Scheduler.h"
#include "platform/InputMonitor.h"
#include "platform/linux/desktop/Observers.h"
#include "platform/linux/desktop/WaylandDisplay.h"

#include <QObject>
#include <QPointF>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QDropEvent;
class QMouseEvent;
class QWindow;
QT_END_NAMESPACE

namespace tembra {

// A compositor tells a program only what happens over its own windows, and where only those lie that it has
// placed itself. A pointer that is anywhere else counts as being in a corner that no panel reaches.
class WaylandInputMonitor final : public QObject, public InputMonitor {
public:
    WaylandInputMonitor(Scheduler &scheduler, std::shared_ptr<WaylandDisplay> display);

    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(const Event &)> onEvent) override;
    [[nodiscard]] bool isForeignDragOffered() const override { return m_isDragOffered; }
    [[nodiscard]] ScreenPoint pointer() const override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    void receive(QWindow &window, QEvent &event);
    void receiveMouse(QWindow &window, const QMouseEvent &event);
    void receiveDrag(QWindow &window, const QDropEvent &event);
    void endDrag();
    void entered(QWindow &window, QPointF point);
    void left(const QWindow &window);
    void vanished(const QWindow &window);
    // The pointer is in none of our windows, unless one hears soon that it is.
    void expectLoss();
    void report(Kind kind, bool isLocal);
    [[nodiscard]] ScreenPoint away() const;

    Scheduler &m_scheduler;
    const std::shared_ptr<WaylandDisplay> m_display;
    // The one of our placed windows that the pointer is in.
    QPointer<QWindow> m_window;
    // Where it was last seen, in screen points.
    QPointF m_point;
    // Something hangs at the pointer, which then is nobody's.
    bool m_isDragging = false;
    bool m_isDragOffered = false;
    WorkItem m_dragEnd;
    WorkItem m_loss;
    Observers<Observation, const Event &> m_observers;
};

} // namespace tembra
