#include "updates/UpdateSchedule.h"

#include "settings/FolderPreferences.h"
#include "settings/SettingsKeys.h"

#include <algorithm>

namespace tembra::updateSchedule {

namespace {

const QString automaticChecksKey = QStringLiteral("SUEnableAutomaticChecks");
const QString lastCheckKey = QStringLiteral("SULastCheckTime");
const QString newestListKey = QStringLiteral("newestUpdateList");
const QString launchedBeforeKey = QStringLiteral("SUHasLaunchedBefore");

// In whole seconds.
std::optional<Instant> instantAt(const UserDefaults &defaults, const QString &key) {
    // A later one and the interval after it would not fit into an instant.
    constexpr auto latest = std::chrono::floor<std::chrono::seconds>(Instant::max() - interval);
    const auto seconds = defaults.integer(key);
    if (!seconds || *seconds < 0 || *seconds > latest.time_since_epoch().count())
        return std::nullopt;
    return Instant(std::chrono::seconds(*seconds));
}

void setInstantAt(UserDefaults &defaults, const QString &key, Instant instant) {
    defaults.setInteger(key, std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count());
}

} // namespace

void preserveExistingAutomaticChecks(UserDefaults &defaults) {
    if (defaults.contains(automaticChecksKey))
        return;
    const bool isExisting = defaults.boolean(settingsKey::hasCompletedOnboarding) == true ||
                            defaults.string(FolderPreferences().legacyFolderKey) ||
                            defaults.contains(lastCheckKey);
    if (isExisting)
        defaults.setBoolean(automaticChecksKey, false);
}

bool automaticChecksAtStart(UserDefaults &defaults) {
    const bool wasStartedBefore = defaults.boolean(launchedBeforeKey) == true;
    if (!wasStartedBefore)
        defaults.setBoolean(launchedBeforeKey, true);
    // Written down, lest the next start takes the checks of this one for those of an earlier version.
    if (wasStartedBefore && !defaults.contains(automaticChecksKey))
        defaults.setBoolean(automaticChecksKey, true);
    return defaults.boolean(automaticChecksKey).value_or(false);
}

void setAutomaticChecks(UserDefaults &defaults, bool on) {
    defaults.setBoolean(automaticChecksKey, on);
}

std::optional<Instant> lastCheck(const UserDefaults &defaults) {
    return instantAt(defaults, lastCheckKey);
}

void setLastCheck(UserDefaults &defaults, Instant instant) {
    setInstantAt(defaults, lastCheckKey, instant);
}

bool acceptList(UserDefaults &defaults, std::optional<Instant> publishedAt) {
    const auto newest = instantAt(defaults, newestListKey);
    if (newest && (!publishedAt || *publishedAt < *newest))
        return false;
    if (publishedAt && newest != publishedAt)
        setInstantAt(defaults, newestListKey, *publishedAt);
    return true;
}

Scheduler::Duration delay(std::optional<Instant> lastCheck, Instant now) {
    if (!lastCheck)
        return Scheduler::Duration::zero();
    return std::clamp(*lastCheck + interval - now, Scheduler::Duration::zero(), interval);
}

} // namespace tembra::updateSchedule
