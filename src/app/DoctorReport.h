#pragma once

#include "doctor/DoctorCheck.h"

#include <QByteArray>

#include <vector>

namespace tembra {

// What `tembra doctor` prints. A value.
struct DoctorReport {
    std::vector<DoctorCheck> checks;

    // Nothing is broken.
    [[nodiscard]] bool isHealthy() const;
    [[nodiscard]] QByteArray json() const;
    [[nodiscard]] QString text() const;
};

} // namespace tembra
