#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "screenshots/DesktopScreenshotOrganizer.h"

#include <functional>

namespace tembra {

class ScreenshotCaptureDetector;

// The screenshots that lie on the user's Desktop: counted and moved in the background. Main thread; what is
// asked for is not answered any more when this is gone, but what is being moved is moved.
class DesktopScreenshots {
public:
    // Everything outlives this and the queue, on which `customPrefix` tells how the tool's user has captures
    // named.
    DesktopScreenshots(QString desktop, const ScreenshotCaptureDetector &detector,
                       std::function<QString()> customPrefix, SerialQueue &queue, Scheduler &scheduler);

    using Report = DesktopScreenshotOrganizer::Report;

    [[nodiscard]] const QString &folder() const { return m_desktop; }
    void count(std::function<void(int count)> done);
    void moveTo(const QString &folder, std::function<void(const Result<Report> &)> done);

private:
    const QString m_desktop;
    const ScreenshotCaptureDetector &m_detector;
    const std::function<QString()> m_customPrefix;
    SerialQueue &m_queue;
    Scheduler &m_scheduler;
    const Generation m_generation;
};

} // namespace tembra
