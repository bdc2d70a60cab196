#include "app/IsoDate.h"

#include <QDateTime>

namespace tembra {

QString isoDate(Instant instant) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(milliseconds.count());
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

} // namespace tembra
