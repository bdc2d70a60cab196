#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tembra {

// A file's name is bytes to the system and text to the program. Bytes that are no UTF-8 are kept as lone low
// surrogates (U+DC80 and up, which no valid text holds), so that every file can be named and reached; any
// thread.
[[nodiscard]] QString pathFromBytes(QByteArrayView bytes);
// What the system is to be asked for.
[[nodiscard]] QByteArray pathBytes(const QString &path);

} // namespace tembra
