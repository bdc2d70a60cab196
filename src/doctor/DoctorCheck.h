#pragma once

#include "platform/Finding.h"

namespace tembra {

// One thing that was examined. A value.
struct DoctorCheck {
    // For scripts: a word that never changes.
    QString id;
    // As the user calls it.
    QString title;
    Finding finding;

    bool operator==(const DoctorCheck &) const = default;
};

} // namespace tembra
