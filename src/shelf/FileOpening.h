#pragma once

#include "platform/Workspace.h"

#include <functional>

namespace tembra {

// Shows a failure as title and message.
using ShowFailure = std::function<void(const QString &title, const QString &message)>;

// Both do nothing without files. Main thread.
void revealFiles(Workspace &workspace, const QStringList &paths, const ShowFailure &show);
// In the default application when the identifier is empty.
void openFiles(Workspace &workspace, const QStringList &paths, const QString &applicationIdentifier,
               const ShowFailure &show);

} // namespace tembra
