#pragma once

#include "base/Result.h"

#include <QString>

namespace tembra {

struct CommandLine;

// `tembra ocr`: reads the text of an image. Needs no running program, but an application object that knows
// image formats. Gives what there is to print.
[[nodiscard]] Result<QString> readText(const CommandLine &line);

} // namespace tembra
