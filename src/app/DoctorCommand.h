#pragma once

#include "app/DoctorReport.h"
#include "base/Result.h"

namespace tembra {

class Scheduler;

// Examines this desktop with the settings of the running program, or with the stored ones where none runs.
// Needs an application object with windows; handles its events until it is done.
[[nodiscard]] DoctorReport examineDesktop(Scheduler &scheduler);

} // namespace tembra
