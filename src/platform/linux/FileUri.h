#pragma once

#include <QFile>

namespace tembra {

// Percent-encoded character for character the way GLib does: programs compare such names as they stand.
inline QByteArray fileUri(const QString &path) {
    return "file://" + QFile::encodeName(path).toPercentEncoding("/!*'()&=:@+$,");
}

} // namespace tembra
