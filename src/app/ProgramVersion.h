#pragma once

#include <QString>

namespace tembra {

// "0.1.0", as updates and the settings have it.
[[nodiscard]] QString programVersion();
// "0.1.0 (abc1234)": with the commit that was built, and a plus where its sources were changed since.
[[nodiscard]] QString programVersionWithCommit();

} // namespace tembra
