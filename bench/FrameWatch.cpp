#include "FrameWatch.h"

#include <QEvent>
#include <QWidget>

#include <ctime>
#include <utility>

namespace tembra::bench {

namespace {

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

bool FrameWatch::notify(QObject *receiver, QEvent *event) {
    if (event->type() == QEvent::Paint && receiver->isWidgetType())
        m_painted = m_painted || isWatched(*static_cast<QWidget *>(receiver)->window());
    if (m_depth > 0)
        return QApplication::notify(receiver, event);
    const Clock::time_point began = Clock::now();
    const double processorBefore = processorMilliseconds();
    ++m_depth;
    const bool result = QApplication::notify(receiver, event);
    --m_depth;
    finishTurn(began, processorBefore);
    return result;
}

void FrameWatch::finishTurn(Clock::time_point began, double processorBefore) {
    m_current.processor += processorMilliseconds() - processorBefore;
    m_current.wall += millisecondsSince(began);
    if (std::exchange(m_painted, false)) {
        m_frames.push_back(std::exchange(m_current, {}));
        onFrame();
    }
    onTurn(began);
}

std::vector<FrameWatch::Frame> FrameWatch::takeFrames() {
    m_current = {};
    return std::exchange(m_frames, {});
}

} // namespace tembra::bench
