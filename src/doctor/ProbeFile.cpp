#include "doctor/ProbeFile.h"

#include <QTemporaryFile>

namespace tembra {

std::optional<QString> makeProbeFile(const QString &folder) {
    QTemporaryFile file(folder + QStringLiteral("/.tembra-check-XXXXXX"));
    file.setAutoRemove(false);
    if (!file.open() || file.write("Tembra") < 0)
        return std::nullopt;
    return file.fileName();
}

} // namespace tembra
