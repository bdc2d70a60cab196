#pragma once

#include <QByteArray>
#include <QString>

namespace tembra {

struct ProgramStatus;
struct ShelfStatus;

// `tembra status --json`: keys are only ever added; dates are ISO 8601 with zone; frames [x, y, width,
// height] in screen points, origin top left.
[[nodiscard]] QByteArray statusJson(const ProgramStatus &program);

// `tembra status`: a few lines to read.
[[nodiscard]] QString statusText(const ShelfStatus &status);

} // namespace tembra
