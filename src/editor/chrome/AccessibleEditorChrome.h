#pragma once

namespace tembra {

// Makes known to assistive programs that a banner is an alert and that rows of controls are groups. The first
// call counts.
void installAccessibleEditorChrome();

} // namespace tembra
