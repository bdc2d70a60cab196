#pragma once

namespace tembra {

// Makes known to assistive programs that a grid of files is a list of items that can be selected, and that
// the header's buttons are tabs. The first call counts.
void installAccessibleShelf();

} // namespace tembra
