// The screenshot tool's floating thumbnail: switched off with what it was before kept, and put back.

#include "base/MainThread.h"
#include "platform/UserDefaults.h"
#include "settings/AppSettings.h"
#include "settings/SettingsKeys.h"

namespace tembra {

namespace {

QString stored(std::optional<bool> preference) {
    if (!preference)
        return QStringLiteral("default");
    return *preference ? QStringLiteral("on") : QStringLiteral("off");
}

} // namespace

Result<void> AppSettings::setScreenshotPreviewDisabled(bool disabled) {
    requireMainThread();
    if (m_state.screenshotPreviewDisabled == disabled)
        return {};
    const ScreenshotThumbnailPreference &preference = m_functions.thumbnailPreference;
    const QString &previousKey = settingsKey::previousScreenshotThumbnailPreference;
    Result<void> written;
    if (disabled) {
        m_defaults.setString(previousKey, stored(preference.read()));
        written = preference.write(false);
        if (!written)
            m_defaults.remove(previousKey);
    } else {
        const bool wasDefault = m_defaults.string(previousKey) == QStringLiteral("default");
        written = preference.write(wasDefault ? std::nullopt : std::optional(true));
        if (written)
            m_defaults.remove(previousKey);
    }
    if (!written)
        return written;
    AppSettingsState next = m_state;
    next.screenshotPreviewDisabled = disabled;
    change(next);
    return {};
}

void AppSettings::refreshScreenshotPreview() {
    requireMainThread();
    AppSettingsState next = m_state;
    next.screenshotPreviewDisabled = m_functions.thumbnailPreference.read() == false;
    change(next);
}

} // namespace tembra
