#include "app/ProgramVersion.h"

#include "app/Commit.h"
#include "app/Version.h"

namespace tembra {

QString programVersion() {
    return QStringLiteral(TEMBRA_VERSION);
}

QString programVersionWithCommit() {
    const QString commit = QStringLiteral(TEMBRA_COMMIT);
    return QStringLiteral("%1 (%2)").arg(programVersion(),
                                         commit.isEmpty() ? QStringLiteral("commit unknown") : commit);
}

} // namespace tembra
