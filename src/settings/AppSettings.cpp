#include "settings/AppSettings.h"

#include "base/MainThread.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/SettingsLoading.h"
#include "settings/SettingsMigration.h"

namespace tembra {

AppSettings::AppSettings(UserDefaults &defaults, FolderPreferences folderPreferences,
                         ScreenshotFolderAccess folderAccess, Functions functions)
    : m_defaults(defaults),
      m_folderPreferences(std::move(folderPreferences)),
      m_folderAccess(std::move(folderAccess)),
      m_functions(std::move(functions)) {
    requireMainThread();
    migrateExistingInstall(m_defaults, m_folderPreferences);
    markAutoCleanSafetyReview(m_defaults);
    loadPins();
    m_state = loadSettings(m_defaults);
    loadFolder();
    m_state.screenshotPreviewDisabled = m_functions.thumbnailPreference.read() == false;
}

void AppSettings::loadFolder() {
    adoptLegacyFolder();
    const auto renewed = m_folderAccess.restore(m_defaults.data(m_folderPreferences.bookmarkKey));
    if (renewed && *renewed)
        m_defaults.setData(m_folderPreferences.bookmarkKey, **renewed);
    applyFolderAccess();
}

void AppSettings::adoptLegacyFolder() {
    if (m_defaults.boolean(m_folderPreferences.legacyCheckedKey()).value_or(false))
        return;
    const auto path = m_defaults.string(m_folderPreferences.legacyFolderKey);
    if (path && !m_defaults.data(m_folderPreferences.bookmarkKey)) {
        if (const auto bookmark = m_folderAccess.grant(*path))
            m_defaults.setData(m_folderPreferences.bookmarkKey, *bookmark);
    }
    m_defaults.setBoolean(m_folderPreferences.legacyCheckedKey(), true);
}

void AppSettings::applyFolderAccess() {
    m_state.screenshotsFolder = m_folderAccess.folder();
    m_state.hasFolderAccess = m_folderAccess.scopedURL().has_value();
}

bool AppSettings::isFolderAccessLost() const {
    return !m_state.hasFolderAccess && m_defaults.data(m_folderPreferences.bookmarkKey).has_value();
}

std::optional<QString> AppSettings::lostScreenshotsFolder() const {
    const auto bookmark = m_defaults.data(m_folderPreferences.bookmarkKey);
    return isFolderAccessLost() ? m_folderAccess.lastKnownFolder(*bookmark) : std::nullopt;
}

void AppSettings::change(const AppSettingsState &next) {
    if (next == m_state)
        return;
    m_state = next;
    Q_EMIT updates(m_state);
}

template <class Value, class Store>
void AppSettings::assign(Value AppSettingsState::*field, const Value &value, Store store) {
    requireMainThread();
    if (m_state.*field == value)
        return;
    store();
    // NOLINTNEXTLINE(misc-const-correctness): it is written through the pointer to its member.
    AppSettingsState next = m_state;
    next.*field = value;
    change(next);
}

void AppSettings::setFlag(bool AppSettingsState::*field, const QString &key, bool value) {
    assign(field, value, [&] { m_defaults.setBoolean(key, value); });
}

void AppSettings::setActivationMode(ActivationMode mode) {
    assign(&AppSettingsState::activationMode, mode,
           [&] { m_defaults.setString(settingsKey::activationMode, rawValue(mode)); });
}

void AppSettings::setShortcutEnabled(bool enabled) {
    setFlag(&AppSettingsState::shortcutEnabled, settingsKey::shortcutEnabled, enabled);
}

void AppSettings::setActivationShortcut(const ActivationShortcut &shortcut) {
    if (!shortcut.isValid())
        return requireMainThread();
    assign(&AppSettingsState::activationShortcut, shortcut,
           [&] { m_defaults.setData(settingsKey::activationShortcut, shortcut.toJson()); });
}

void AppSettings::setHoverOnTabToOpen(bool opens) {
    setFlag(&AppSettingsState::hoverOnTabToOpen, settingsKey::hoverOnTabToOpen, opens);
}

void AppSettings::setFileTrayEnabled(bool enabled) {
    setFlag(&AppSettingsState::fileTrayEnabled, settingsKey::fileTrayEnabled, enabled);
}

void AppSettings::setImageToTextEnabled(bool enabled) {
    setFlag(&AppSettingsState::imageToTextEnabled, settingsKey::imageToTextEnabled, enabled);
}

void AppSettings::setDisplayPreference(DisplayPreference preference) {
    assign(&AppSettingsState::displayPreference, preference,
           [&] { m_defaults.setString(settingsKey::displayPreference, rawValue(preference)); });
}

void AppSettings::setScreenshotNotifications(bool shown) {
    setFlag(&AppSettingsState::screenshotNotifications, settingsKey::screenshotNotifications, shown);
}

void AppSettings::setAutomaticallyCopyScreenshots(bool copies) {
    setFlag(&AppSettingsState::automaticallyCopyScreenshots, settingsKey::automaticallyCopyScreenshots,
            copies);
}

void AppSettings::setAutomaticallyOpenEditor(bool opens) {
    setFlag(&AppSettingsState::automaticallyOpenEditor, settingsKey::automaticallyOpenEditor, opens);
}

void AppSettings::setShowFileNames(bool shown) {
    setFlag(&AppSettingsState::showFileNames, settingsKey::showFileNames, shown);
}

void AppSettings::setGroupScreenshotsByDate(bool grouped) {
    setFlag(&AppSettingsState::groupScreenshotsByDate, settingsKey::groupScreenshotsByDate, grouped);
}

void AppSettings::setTextRecognitionLanguages(const QStringList &codes) {
    assign(&AppSettingsState::textRecognitionLanguages, codes,
           [&] { m_defaults.setStringArray(settingsKey::textRecognitionLanguages, codes); });
}

void AppSettings::setNewCaptureCommand(const QStringList &command) {
    assign(&AppSettingsState::newCaptureCommand, command,
           [&] { m_defaults.setStringArray(settingsKey::newCaptureCommand, command); });
}

void AppSettings::setScreenshotAutoClean(ScreenshotAutoCleanPeriod period) {
    assign(&AppSettingsState::screenshotAutoClean, period, [&] {
        m_defaults.setInteger(settingsKey::screenshotAutoCleanDays, static_cast<int>(period));
        if (period == ScreenshotAutoCleanPeriod::never)
            m_defaults.setInteger(settingsKey::autoCleanSafetyReview, 2);
    });
}

Result<void> AppSettings::grantScreenshotsFolder(const QString &folder, bool updateSystemLocation,
                                                 bool resetAutoClean) {
    requireMainThread();
    ScreenshotFolderAccess access = m_folderAccess;
    const auto bookmark = access.grant(folder);
    if (!bookmark)
        return failure(bookmark.error());
    if (updateSystemLocation) {
        if (auto updated = m_functions.updateSystemFolder(*access.folder()); !updated)
            return updated;
    }
    m_folderAccess = access;
    m_defaults.setData(m_folderPreferences.bookmarkKey, *bookmark);
    AppSettingsState next = m_state;
    next.screenshotsFolder = m_folderAccess.folder();
    next.hasFolderAccess = true;
    if (resetAutoClean) {
        m_defaults.setInteger(settingsKey::screenshotAutoCleanDays, 0);
        next.screenshotAutoClean = ScreenshotAutoCleanPeriod::never;
    }
    change(next);
    return {};
}

void AppSettings::refreshFolderAccess() {
    requireMainThread();
    ScreenshotFolderAccess access = m_folderAccess;
    const auto renewed = access.restore(m_defaults.data(m_folderPreferences.bookmarkKey));
    if (!renewed && renewed.error().code == Bookmarks::volumeAbsent &&
        renewed.error().domain == Bookmarks::errorDomain)
        access.stop();
    else if (!renewed || !access.folder())
        return;
    if (renewed && *renewed)
        m_defaults.setData(m_folderPreferences.bookmarkKey, **renewed);
    m_folderAccess = access;
    AppSettingsState next = m_state;
    next.screenshotsFolder = m_folderAccess.folder();
    next.hasFolderAccess = m_folderAccess.scopedURL().has_value();
    change(next);
}

void AppSettings::beginOnboarding() {
    requireMainThread();
    if (!m_state.hasCompletedOnboarding)
        setFlag(&AppSettingsState::hasCaughtFirstScreenshot, settingsKey::hasCaughtFirstScreenshot, false);
}

void AppSettings::completeOnboarding() {
    requireMainThread();
    if (!m_state.hasFolderAccess || m_state.hasCompletedOnboarding)
        return;
    keepNewInstall(m_defaults, m_state);
    setFlag(&AppSettingsState::hasCompletedOnboarding, settingsKey::hasCompletedOnboarding, true);
}

void AppSettings::markFirstScreenshotCaught() {
    requireMainThread();
    if (m_state.hasFolderAccess)
        setFlag(&AppSettingsState::hasCaughtFirstScreenshot, settingsKey::hasCaughtFirstScreenshot, true);
}

} // namespace tembra
