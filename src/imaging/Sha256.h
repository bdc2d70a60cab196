#pragma once

#include <QByteArrayView>
#include <QString>

namespace tembra {

// The SHA-256 of the bytes in lower-case hexadecimal. Any thread.
[[nodiscard]] QString sha256Hex(QByteArrayView bytes);

} // namespace tembra
