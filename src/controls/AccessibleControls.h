#pragma once

namespace tembra {

// Makes known to assistive programs what those of our controls are that Qt cannot tell by itself. Called by
// the controls; the first call counts.
void installAccessibleControls();

} // namespace tembra
