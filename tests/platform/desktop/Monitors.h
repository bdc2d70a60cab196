#pragma once

#include <QStringList>

namespace tembra {

// Changes the screens of the X server as the user's display settings would.
void runXrandr(const QStringList &arguments);
// Two screens side by side in place of the one, and the one again.
void splitScreen();
void joinScreen();

} // namespace tembra
