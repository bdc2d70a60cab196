#pragma once

namespace tembra {

// Makes known to assistive programs what the views of the panel for text recognition are. Called by the
// panel; the first call counts.
void installAccessibleRecognition();

} // namespace tembra
