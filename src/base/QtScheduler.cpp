#include "base/QtScheduler.h"

#include "base/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

class TimerState final : public WorkItem::State {
public:
    TimerState(std::chrono::milliseconds delay, Qt::TimerType type, std::function<void()> work)
        : m_work(std::move(work)) {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(type);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { run(); });
        m_timer.start(delay);
    }

    void cancel() override {
        m_timer.stop();
        m_work = nullptr;
    }

    bool isPending() const override { return m_timer.isActive(); }

private:
    // The work may drop the handle, and with it this object: it runs from the stack.
    void run() {
        const std::function<void()> work = std::exchange(m_work, nullptr);
        if (work)
            work();
    }

    QTimer m_timer;
    std::function<void()> m_work;
};

} // namespace

WorkItem QtScheduler::schedule(Duration delay, std::function<void()> work, Duration tolerance) {
    requireMainThread();
    const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(std::max(delay, Duration::zero()));
    // A coarse timer may fire up to 5 % late or early, so it is asked for only where that stays within the
    // tolerance.
    const bool coarse = tolerance > milliseconds / 20;
    return WorkItem(std::make_shared<TimerState>(milliseconds, coarse ? Qt::CoarseTimer : Qt::PreciseTimer,
                                                 std::move(work)));
}

void QtScheduler::post(std::function<void()> work) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(work), Qt::QueuedConnection);
}

} // namespace tembra
