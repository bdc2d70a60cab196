#pragma once

#include <QByteArray>
#include <QString>

namespace tembra::bench {

// A small whole PNG.
[[nodiscard]] QByteArray capturePng();

// Fills a folder with small, whole captures whose names and dates run back from an hour ago, a minute apart;
// whether it could.
[[nodiscard]] bool fillWithCaptures(const QString &folder, int count);

} // namespace tembra::bench
