#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"
#include "platform/UserDefaults.h"

#include <optional>

namespace tembra {

// When updates are looked for by themselves, from what the preferences hold. Rules without effects but on the
// preferences; main thread.
//
// While the user has not said whether to ("SUEnableAutomaticChecks" is absent), the first start asks for
// nothing and checks nothing, and from the second on checks are on. An install that was there before updates
// were, which includes one whose user went through the onboarding in an earlier start, has false written into
// that key instead and so does not check until its user says so.
namespace updateSchedule {

constexpr Scheduler::Duration interval = std::chrono::hours(24);

// Keeps existing installs from checking until their user opts in.
void preserveExistingAutomaticChecks(UserDefaults &defaults);
// Whether checks are on; counts the start, and writes down what follows from it.
[[nodiscard]] bool automaticChecksAtStart(UserDefaults &defaults);
void setAutomaticChecks(UserDefaults &defaults, bool on);

[[nodiscard]] std::optional<Instant> lastCheck(const UserDefaults &defaults);
void setLastCheck(UserDefaults &defaults, Instant instant);

// Whether a list of that date, signed with it, is not older than one that was seen before, which somebody
// would have kept back; remembers the newest.
[[nodiscard]] bool acceptList(UserDefaults &defaults, std::optional<Instant> publishedAt);

// How long to wait for the next check; never more than the interval, also where the clock was set back.
[[nodiscard]] Scheduler::Duration delay(std::optional<Instant> lastCheck, Instant now);

} // namespace updateSchedule

} // namespace tembra
