#pragma once

#include "platform/linux/CaptureNamePattern.h"

#include <span>

namespace tembra {

// The names that screenshot and recording tools of Linux desktops give to their files, as those tools write
// them when nobody changed their settings.
[[nodiscard]] std::span<const CaptureNamePattern> linuxImageNames();
[[nodiscard]] std::span<const CaptureNamePattern> linuxVideoNames();
// The names without any word, which are captures only with the extension that their tool writes; nothing for
// other extensions.
[[nodiscard]] const CaptureNamePattern *wordlessName(QStringView lowerCaseExtension);

} // namespace tembra
