#include "windows/onboarding/DesktopScreenshots.h"

#include "base/Background.h"

namespace tembra {

DesktopScreenshots::DesktopScreenshots(QString desktop, const ScreenshotCaptureDetector &detector,
                                       std::function<QString()> customPrefix, SerialQueue &queue,
                                       Scheduler &scheduler)
    : m_desktop(std::move(desktop)),
      m_detector(detector),
      m_customPrefix(std::move(customPrefix)),
      m_queue(queue),
      m_scheduler(scheduler) {}

void DesktopScreenshots::count(std::function<void(int count)> done) {
    performInBackground(
        m_queue, m_scheduler, m_generation.ticket(),
        [desktop = m_desktop, &detector = m_detector, prefix = m_customPrefix] {
            return DesktopScreenshotOrganizer::countScreenshots(desktop, detector, prefix());
        },
        std::move(done));
}

void DesktopScreenshots::moveTo(const QString &folder, std::function<void(const Result<Report> &)> done) {
    performInBackground(
        m_queue, m_scheduler, m_generation.ticket(),
        [desktop = m_desktop, folder, &detector = m_detector, prefix = m_customPrefix] {
            return DesktopScreenshotOrganizer::moveScreenshots(desktop, folder, detector, prefix());
        },
        std::move(done));
}

} // namespace tembra
