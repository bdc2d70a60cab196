#pragma once

#include "doctor/Doctor.h"

namespace tembra {

struct Platform;

// What the doctor examines, of a platform with a display.
[[nodiscard]] Doctor::Services doctorServices(Platform &platform, Scheduler &scheduler, SerialQueue &queue);

} // namespace tembra
