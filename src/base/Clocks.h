#pragma once

#include <chrono>
#include <functional>

namespace tembra {

// A date: nanoseconds since 1970 in UTC. Files carry this precision, so comparisons are exact.
using Instant = std::chrono::sys_time<std::chrono::nanoseconds>;

// Time since an arbitrary start, never set back; it goes on while the machine sleeps or not as the system
// decides.
using Uptime = std::chrono::nanoseconds;

// Nothing asks the system for the time directly: who needs a date or an uptime is handed one of these.
using WallClock = std::function<Instant()>;
using UptimeClock = std::function<Uptime()>;

inline Instant systemNow() {
    return std::chrono::time_point_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now());
}

inline Uptime systemUptime() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

} // namespace tembra
