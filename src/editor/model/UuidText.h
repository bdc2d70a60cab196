#pragma once

#include <QString>
#include <QUuid>

namespace tembra {

// As records and the names of their folders have it: upper-case hexadecimal with hyphens, without braces.
[[nodiscard]] inline QString uuidText(const QUuid &id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace tembra
