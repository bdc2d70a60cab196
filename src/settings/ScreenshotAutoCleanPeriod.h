#pragma once

#include <QString>

#include <array>

namespace tembra {

// The age after which screenshots go to the Trash; the value is the number of days, and what is stored.
enum class ScreenshotAutoCleanPeriod { never = 0, oneDay = 1, threeDays = 3, sevenDays = 7, thirtyDays = 30 };

inline constexpr std::array allScreenshotAutoCleanPeriods{
    ScreenshotAutoCleanPeriod::never, ScreenshotAutoCleanPeriod::oneDay, ScreenshotAutoCleanPeriod::threeDays,
    ScreenshotAutoCleanPeriod::sevenDays, ScreenshotAutoCleanPeriod::thirtyDays};

// "Never", "1 day", "3 days" and so on.
[[nodiscard]] QString title(ScreenshotAutoCleanPeriod period);
// Any number that is no period reads as `never`.
[[nodiscard]] ScreenshotAutoCleanPeriod autoCleanPeriodFromDays(qint64 days);

} // namespace tembra
