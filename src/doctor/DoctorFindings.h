#pragma once

#include "base/Result.h"
#include "doctor/DoctorSubject.h"
#include "platform/Finding.h"
#include "platform/TextRecognizer.h"
#include "platform/Trash.h"
#include "screenshots/ScreenshotDestination.h"

#include <vector>

namespace tembra {

// What each examination comes to, in the user's words. Any thread, but for the folder's and the command's,
// which ask the file system and nothing else.

[[nodiscard]] Finding folderFinding(const DoctorSubject &subject);
// Whether the tool saves where captures are looked for.
[[nodiscard]] Finding toolFinding(const QString &tool, const ScreenshotDestination &destination,
                                  const std::optional<QString> &folder);
// `desktop` is what this desktop offers.
[[nodiscard]] Finding shortcutFinding(const DoctorSubject &subject, const Finding &desktop);
// `missing` is what to say of languages that are not installed: their names and codes go into it.
[[nodiscard]] Finding languagesFinding(const Result<std::vector<TextRecognizer::Language>> &installed,
                                       const QStringList &wanted, Finding missing);
[[nodiscard]] Finding commandFinding(const QStringList &command);
// Moves a hidden file of its own into the Trash of the folder's volume and back, and removes it. Waits for
// the disk.
[[nodiscard]] Finding trashFinding(Trash &trash, const QString &folder);

} // namespace tembra
