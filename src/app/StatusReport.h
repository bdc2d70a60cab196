#pragma once

#include <QByteArray>
#include <QString>

namespace tembra {

struct EditorStatus;
struct ShelfStatus;

// `tembra status --json`: keys are only ever added; dates are ISO 8601 with zone; frames [x, y, width,
// height] in screen points, origin top left.
[[nodiscard]] QByteArray statusJson(const ShelfStatus &status, const EditorStatus &editor,
                                    const QString &version);

// `tembra status`: a few lines to read.
[[nodiscard]] QString statusText(const ShelfStatus &status);

} // namespace tembra
