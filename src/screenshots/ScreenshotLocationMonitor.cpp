#include "screenshots/ScreenshotLocationMonitor.h"

#include "base/Background.h"
#include "base/MainThread.h"

#include <limits>

namespace tembra {

ScreenshotLocationMonitor::ScreenshotLocationMonitor(std::function<ScreenshotDestination()> read,
                                                     SerialQueue &queue, Scheduler &scheduler,
                                                     Workspace &workspace)
    : m_read(std::move(read)), m_queue(queue), m_scheduler(scheduler), m_workspace(workspace) {}

void ScreenshotLocationMonitor::start() {
    requireMainThread();
    if (m_running)
        return;
    m_running = true;
    m_sleeping = false;
    m_observation = m_workspace.observe([this](Workspace::Event event) {
        if (event == Workspace::Event::willSleep) {
            m_sleeping = true;
            raiseGeneration();
        } else if (event == Workspace::Event::didWake) {
            m_sleeping = false;
            check();
        }
    });
    check();
}

void ScreenshotLocationMonitor::stop() {
    requireMainThread();
    m_running = false;
    m_observation.reset();
}

void ScreenshotLocationMonitor::raiseGeneration() {
    if (generation == std::numeric_limits<std::int64_t>::max())
        qFatal("ScreenshotLocationMonitor: the generation overflows");
    ++generation;
}

void ScreenshotLocationMonitor::check() {
    requireMainThread();
    if (!m_running || m_sleeping)
        return;
    if (m_reading) {
        m_pending = true;
        return;
    }
    m_reading = true;
    performInBackground(m_queue, m_scheduler, m_lifetime.ticket(), m_read,
                        [this, readGeneration = generation](const ScreenshotDestination &destination) {
                            receive(destination, readGeneration);
                        });
}

void ScreenshotLocationMonitor::receive(const ScreenshotDestination &destination,
                                        std::int64_t readGeneration) {
    m_reading = false;
    const bool isCurrent = m_running && !m_sleeping && generation == readGeneration;
    const bool again = std::exchange(m_pending, false);
    if (isCurrent && onRead)
        onRead(destination);
    if (again)
        check();
}

} // namespace tembra
