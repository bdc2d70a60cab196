#pragma once

#include <QIcon>

namespace tembra {

// The program's icon for its windows: the desktop's where its theme has one of that name, else our own. Main
// thread.
[[nodiscard]] QIcon programIcon();

} // namespace tembra
