#pragma once

namespace tembra {

// Makes the canvas known to assistive programs as a list of what is drawn on the screenshot. Called by the
// canvas; the first call counts.
void installAccessibleCanvas();

} // namespace tembra
