#pragma once

#include "base/Clocks.h"

#include <QString>
#include <QUrl>

#include <optional>

namespace tembra {

// What the settings show of updates. A value.
struct SettingsUpdateState {
    enum class Kind {
        // This copy was built without a place to get updates from.
        notConfigured,
        managedBySystem,
        idle,
        checking,
        upToDate,
        available,
        downloading,
        // The update is on the disk and the publisher's.
        ready,
        failed
    };

    Kind kind = Kind::idle;
    // Of the update, in available, downloading and ready; in failed where it could be fetched again.
    QString version;
    // Empty where there are none.
    QUrl releaseNotes;
    // Of the download, 0 to 1.
    double progress = 0;
    // In failed: the sentence that says why.
    QString failure;
    std::optional<Instant> lastCheck;

    bool operator==(const SettingsUpdateState &) const = default;
};

// The one sentence that tells the user.
[[nodiscard]] QString updateText(const SettingsUpdateState &state);
// For scripts.
[[nodiscard]] QString updateStateName(SettingsUpdateState::Kind kind);

} // namespace tembra
