#pragma once

#include "base/Result.h"

#include <QObject>
#include <QStringList>

namespace tembra {

// The user's file manager. Main thread; never waits for it to start.
class FileManager {
public:
    // Shows the files, selected, in the folder they are in. Without a file manager that can do this, and
    // when it fails later, the folder of the first one is opened.
    Result<void> reveal(const QStringList &paths);
    Result<void> openFolder(const QString &path);

private:
    // Ends the interest in answers that are still to come.
    QObject m_context;
};

} // namespace tembra
