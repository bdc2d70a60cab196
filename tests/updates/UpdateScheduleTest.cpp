#include "updates/UpdateSchedule.h"

#include "support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

using Values = MemoryUserDefaults::Values;

const QString automatic = QStringLiteral("SUEnableAutomaticChecks");
const QString lastCheck = QStringLiteral("SULastCheckTime");
const QString onboarded = QStringLiteral("hasCompletedOnboarding");
const QString folder = QStringLiteral("folder");

} // namespace

TEST(UpdateSchedule, existingInstallsDoNotCheckUntilTheirUserSaysSo) {
    const struct {
        const char *name;
        Values before;
        std::optional<bool> after;
    } cases[]{
        {"a new install", {}, std::nullopt},
        {"onboarded", {{onboarded, true}}, false},
        {"not yet onboarded", {{onboarded, false}}, std::nullopt},
        {"with the folder of old", {{folder, QStringLiteral("/shots")}}, false},
        {"with no folder in its place", {{folder, QByteArray("x")}}, std::nullopt},
        {"checked before", {{lastCheck, qint64(5)}}, false},
        {"checked before, as others tell it", {{lastCheck, QStringLiteral("yesterday")}}, false},
        {"opted in", {{onboarded, true}, {automatic, true}}, true},
    };
    for (const auto &c : cases) {
        MemoryUserDefaults defaults;
        defaults.values = c.before;
        updateSchedule::preserveExistingAutomaticChecks(defaults);
        EXPECT_EQ(defaults.boolean(automatic), c.after) << c.name;
    }
}

TEST(UpdateSchedule, aNewInstallChecksFromItsSecondStartOnUnlessToldOtherwise) {
    MemoryUserDefaults defaults;
    EXPECT_FALSE(updateSchedule::automaticChecksAtStart(defaults));
    EXPECT_FALSE(defaults.contains(automatic));
    EXPECT_TRUE(updateSchedule::automaticChecksAtStart(defaults));
    // The checks of this start are not those of an earlier version.
    updateSchedule::setLastCheck(defaults, Instant());
    updateSchedule::preserveExistingAutomaticChecks(defaults);
    EXPECT_TRUE(updateSchedule::automaticChecksAtStart(defaults));
    updateSchedule::setAutomaticChecks(defaults, false);
    EXPECT_FALSE(updateSchedule::automaticChecksAtStart(defaults));
    updateSchedule::setAutomaticChecks(defaults, true);
    EXPECT_TRUE(updateSchedule::automaticChecksAtStart(defaults));
}

TEST(UpdateSchedule, checksAreADayApartWhateverTheClockSays) {
    const Instant now(1'800'000'000s);
    const struct {
        const char *name;
        std::optional<Instant> last;
        Scheduler::Duration wait;
    } cases[]{{"never checked", std::nullopt, 0h},
              {"just now", now, 24h},
              {"earlier today", now - 5h, 19h},
              {"long ago", now - 24h * 400, 0h},
              {"before the clock was set back", now + 24h * 400, 24h}};
    for (const auto &c : cases)
        EXPECT_EQ(updateSchedule::delay(c.last, now), c.wait) << c.name;

    MemoryUserDefaults defaults;
    for (const qint64 absurd : {qint64(-1), std::numeric_limits<qint64>::max(), qint64(9'223'372'036)}) {
        defaults.setInteger(lastCheck, absurd);
        EXPECT_FALSE(updateSchedule::lastCheck(defaults)) << absurd;
    }
    updateSchedule::setLastCheck(defaults, now + 1ms);
    EXPECT_EQ(updateSchedule::lastCheck(defaults), now);
}
