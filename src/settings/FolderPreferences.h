#pragma once

#include <QString>

namespace tembra {

// The keys under which the granted folder is kept.
struct FolderPreferences {
    QString bookmarkKey = QStringLiteral("screenshotsFolderBookmark");
    // A plain path that earlier versions wrote.
    QString legacyFolderKey = QStringLiteral("folder");

    // Set once the legacy key has been looked at.
    [[nodiscard]] QString legacyCheckedKey() const { return bookmarkKey + QStringLiteral(".legacyChecked"); }
};

} // namespace tembra
