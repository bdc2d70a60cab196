#include "screenshots/ScreenshotAutoOpen.h"

#include "base/MainThread.h"
#include "screenshots/CaptureMedia.h"
#include "screenshots/ScreenshotAutoCleanScan.h"
#include "settings/FolderPath.h"

#include <algorithm>
#include <iterator>

namespace tembra {

ScreenshotAutoOpen::ScreenshotAutoOpen(std::function<bool(const QString &)> isCapture)
    : m_isCapture(std::move(isCapture)) {}

void ScreenshotAutoOpen::configure(bool enabled, const std::optional<QString> &folder, Instant now) {
    requireMainThread();
    const auto active = enabled && folder ? std::optional(withoutLinks(*folder)) : std::nullopt;
    if (active == m_folder)
        return;
    m_folder = active;
    m_taken.clear();
    m_enabledSince = now;
}

std::vector<Shot> ScreenshotAutoOpen::take(const std::vector<Shot> &shots) {
    requireMainThread();
    std::vector<Shot> taken;
    std::ranges::copy_if(shots, std::back_inserter(taken),
                         [this](const Shot &shot) { return qualifies(shot); });
    for (const Shot &shot : taken)
        m_taken.insert(shot.location);
    return taken;
}

bool ScreenshotAutoOpen::qualifies(const Shot &shot) const {
    return m_folder && shot.createdAt >= m_enabledSince && CaptureMedia::isEditable(shot.location) &&
           !m_taken.contains(shot.location) &&
           ScreenshotAutoCleanScan::isSafeDescendant(shot.location, *m_folder, true) &&
           m_isCapture(shot.location);
}

} // namespace tembra
