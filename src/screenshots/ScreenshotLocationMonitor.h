#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/Workspace.h"
#include "screenshots/ScreenshotDestination.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace tembra {

// Keeps track of where the screenshot tool saves: reads it in the background when asked and after each wake.
// Main thread; owned by ShelfController.
class ScreenshotLocationMonitor {
public:
    // `read` runs on the queue "app.tembra.screenshot-location" and owns what it needs. The services must
    // outlive it.
    ScreenshotLocationMonitor(std::function<ScreenshotDestination()> read, SerialQueue &queue,
                              Scheduler &scheduler, Workspace &workspace);

    // Called with each fresh result.
    std::function<void(const ScreenshotDestination &)> onRead;
    // A read that was begun under another value is dropped; raised by who has just changed the location.
    std::int64_t generation = 0;

    void start();
    void stop();
    // Reads once more; any number of calls during a read lead to one further read.
    void check();
    // Drops what is being read now: it may still be the old place.
    void raiseGeneration();

private:
    void receive(const ScreenshotDestination &destination, std::int64_t readGeneration);

    const std::function<ScreenshotDestination()> m_read;
    SerialQueue &m_queue;
    Scheduler &m_scheduler;
    Workspace &m_workspace;
    std::unique_ptr<Workspace::Observation> m_observation;
    bool m_running = false;
    bool m_sleeping = false;
    bool m_reading = false;
    bool m_pending = false;
    Generation m_lifetime;
};

} // namespace tembra
