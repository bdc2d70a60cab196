#include "settings/ScreenshotThumbnailPreference.h"

#include "platform/ScreenCapturePreferences.h"

namespace tembra {

ScreenshotThumbnailPreference ScreenshotThumbnailPreference::system(ScreenCapturePreferences &preferences) {
    return {.read = [&preferences] { return preferences.showThumbnail(); },
            .write = [&preferences](std::optional<bool> show) -> Result<void> {
                auto written = preferences.setShowThumbnail(show);
                if (written)
                    preferences.synchronize();
                return written;
            }};
}

} // namespace tembra
