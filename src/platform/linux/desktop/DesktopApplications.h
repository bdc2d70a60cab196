#pragma once

#include "base/Result.h"
#include "platform/Workspace.h"

#include <QStringList>

#include <vector>

namespace tembra {

// The installed programs by their desktop entries, which name what they open, and by the user's choices among
// them (freedesktop.org Desktop Entry and mimeapps.list), through GIO. Main thread; identifiers are desktop
// entry names.
struct DesktopApplications {
    [[nodiscard]] static std::vector<Workspace::Application> applicationsFor(const QStringList &paths);
    static Result<void> open(const QStringList &paths, const QString &identifier);
    static Result<void> openLink(const QUrl &url);
};

} // namespace tembra
