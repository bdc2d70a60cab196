#pragma once

#include "base/FilePath.h"

#include <optional>

namespace tembra {

// Percent-encoded character for character the way GLib does: programs compare such names as they stand.
inline QByteArray fileUri(const QString &path) {
    return "file://" + pathBytes(path).toPercentEncoding("/!*'()&=:@+$,");
}

// The path that a file URI names: RFC 8089, with this machine's name or none; nothing for any other text. Not
// through QUrl, which loses bytes that are no text.
[[nodiscard]] std::optional<QString> pathOfFileUri(const QByteArray &uri);

} // namespace tembra
