#pragma once

#include "base/Result.h"
#include "platform/Workspace.h"

#include <QStringList>

#include <vector>

namespace tembra {

// The installed programs by the desktop entries that name what they open (freedesktop Desktop Entry and MIME
// Applications Associations specifications), through GIO. Main thread; identifiers are desktop entry names.
struct DesktopApplications {
    [[nodiscard]] static std::vector<Workspace::Application> applicationsFor(const QStringList &paths);
    static Result<void> open(const QStringList &paths, const QString &identifier);
};

} // namespace tembra
