#include "settings/ScreenshotAutoCleanPeriod.h"

#include <QCoreApplication>

#include <algorithm>

namespace tembra {

QString title(ScreenshotAutoCleanPeriod period) {
    const int days = static_cast<int>(period);
    switch (period) {
    case ScreenshotAutoCleanPeriod::never:
        return QCoreApplication::translate("ScreenshotAutoCleanPeriod", "Never");
    case ScreenshotAutoCleanPeriod::oneDay:
        return QCoreApplication::translate("ScreenshotAutoCleanPeriod", "1 day");
    case ScreenshotAutoCleanPeriod::threeDays:
    case ScreenshotAutoCleanPeriod::sevenDays:
    case ScreenshotAutoCleanPeriod::thirtyDays:
        return QCoreApplication::translate("ScreenshotAutoCleanPeriod", "%n days", nullptr, days);
    }
    Q_UNREACHABLE();
}

ScreenshotAutoCleanPeriod autoCleanPeriodFromDays(qint64 days) {
    const auto found = std::ranges::find_if(
        allScreenshotAutoCleanPeriods, [days](auto period) { return static_cast<qint64>(period) == days; });
    return found == allScreenshotAutoCleanPeriods.end() ? ScreenshotAutoCleanPeriod::never : *found;
}

} // namespace tembra
