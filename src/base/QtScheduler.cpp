#include "base/QtScheduler.h"

#include "base/HappensBefore.h"
#include "base/MainThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <memory>
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

// Belongs to the main thread's event loop from when it is posted. A function that Qt is asked to invoke there
// belongs to both threads for a moment, and may end on the one that asked.
class PostedWork final : public QEvent {
public:
    explicit PostedWork(std::function<void()> work) : QEvent(User), m_work(std::move(work)) {}

    void run() const { m_work(); }

private:
    const std::function<void()> m_work;
};

} // namespace

class QtScheduler::Receiver final : public QObject {
public:
    ~Receiver() override {
        received(this);
        QCoreApplication::removePostedEvents(this);
    }

    bool event(QEvent *event) override {
        received(this);
        if (event->type() != QEvent::User)
            return QObject::event(event);
        static_cast<PostedWork *>(event)->run();
        return true;
    }
};

QtScheduler::QtScheduler() : m_receiver(std::make_unique<Receiver>()) {}

QtScheduler::~QtScheduler() = default;

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
    auto event = std::make_unique<PostedWork>(std::move(work));
    handedOver(m_receiver.get());
    QCoreApplication::postEvent(m_receiver.get(), event.release());
}

} // namespace tembra
