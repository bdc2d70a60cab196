#pragma once

namespace tembra {

// Tells assistive programs of the menus and lists that are open beside the windows, which Qt leaves out.
// Before the first of them asks.
void installAccessibleProgram();

} // namespace tembra
