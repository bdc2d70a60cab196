#pragma once

#include <QString>

namespace tembra {

// What scripts are told of updates.
struct UpdateStatus {
    QString state;
    // Of the update that there is; empty when there is none.
    QString version;
    bool automatic = false;
};

} // namespace tembra
