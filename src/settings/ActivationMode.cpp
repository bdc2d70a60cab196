#include "settings/ActivationMode.h"

namespace tembra {

QString rawValue(ActivationMode mode) {
    return mode == ActivationMode::click ? QStringLiteral("click") : QStringLiteral("hover");
}

ActivationMode activationModeFromRaw(const QString &raw) {
    return raw == u"click" ? ActivationMode::click : ActivationMode::hover;
}

} // namespace tembra
