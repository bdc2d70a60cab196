#pragma once

#include <QSize>
#include <QString>

namespace tembra {

// The aspect of a crop, as people call it: "3:2", "16:9", "≈ 16:9" where a pixel more or less would not make
// it so, "1.37:1" where it has no name. Empty for an empty crop.
[[nodiscard]] QString cropAspect(QSize crop);

} // namespace tembra
