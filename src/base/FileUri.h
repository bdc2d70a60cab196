#pragma once

#include "base/FilePath.h"

namespace tembra {

// Percent-encoded character for character the way GLib does: programs compare such names as they stand.
inline QByteArray fileUri(const QString &path) {
    return "file://" + pathBytes(path).toPercentEncoding("/!*'()&=:@+$,");
}

} // namespace tembra
