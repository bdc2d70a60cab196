#pragma once

#include "base/Result.h"
#include "doctor/DoctorSubject.h"
#include "platform/Finding.h"
#include "platform/ScreenCapturePreferences.h"
#include "platform/TextRecognizer.h"
#include "platform/Trash.h"
#include "screenshots/ScreenshotDestination.h"

#include <vector>

namespace tembra {

// What each examination comes to, in the user's words. Any thread.

[[nodiscard]] Finding folderFinding(const DoctorSubject &subject);
// Whether the tool saves where captures are looked for.
[[nodiscard]] Finding toolFinding(const ScreenCapturePreferences &preferences,
                                  const ScreenshotDestination &destination,
                                  const std::optional<QString> &folder);
// `desktop` is what this desktop offers.
[[nodiscard]] Finding shortcutFinding(const DoctorSubject &subject, const Finding &desktop);
// `missing` is what to say of languages that are not installed: their names and codes go into it.
[[nodiscard]] Finding languagesFinding(const Result<std::vector<TextRecognizer::Language>> &installed,
                                       const QStringList &wanted, Finding missing);
[[nodiscard]] Finding commandFinding(const QStringList &command);
// Moves a hidden file of its own into the Trash of the folder's volume and back, and removes it, with a Trash
// that is empty then, but for the `lasting` ones. Waits for the disk.
[[nodiscard]] Finding trashFinding(Trash &trash, const QString &folder, const QStringList &lasting);

} // namespace tembra
