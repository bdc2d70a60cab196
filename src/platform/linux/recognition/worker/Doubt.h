#pragma once

#include "platform/linux/recognition/worker/ReadText.h"

namespace tembra::recognition {

// Leaves out what stands at the ends of a segment and is rather an icon, an arrow or the edge of a field than
// text: lone signs that the engine is not sure of.
void leaveOutDoubtful(ReadLine &line);

} // namespace tembra::recognition
