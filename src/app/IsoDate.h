#pragma once

#include "base/Clocks.h"

#include <QString>

namespace tembra {

// ISO 8601 in the local zone with its offset and milliseconds: "2026-11-21T10:15:22.000+01:00".
[[nodiscard]] QString isoDate(Instant instant);

} // namespace tembra
