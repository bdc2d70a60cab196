#pragma once

#include <QString>

namespace tembra {

// A camera in the middle of a screen's top edge, as the user declares it: no Linux desktop tells of it.
// Screen points.
struct CameraHousing {
    QString displayName;
    double width = 0;
    double height = 0;
};

} // namespace tembra
