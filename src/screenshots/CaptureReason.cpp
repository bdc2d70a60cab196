#include "screenshots/CaptureReason.h"

namespace tembra {

QString rawValue(CaptureReason reason) {
    switch (reason) {
    case CaptureReason::marker:
        return QStringLiteral("marker");
    case CaptureReason::metadata:
        return QStringLiteral("metadata");
    case CaptureReason::name:
        return QStringLiteral("name");
    case CaptureReason::tool:
        return QStringLiteral("tool");
    }
    Q_UNREACHABLE();
}

} // namespace tembra
