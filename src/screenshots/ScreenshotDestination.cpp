#include "screenshots/ScreenshotDestination.h"

#include "platform/ScreenCapturePreferences.h"
#include "settings/DetectedFolder.h"

namespace tembra {

ScreenshotDestination ScreenshotDestination::read(ScreenCapturePreferences &preferences,
                                                  const StandardFolders &folders) {
    preferences.synchronize();
    const QString target = preferences.target().value_or(QStringLiteral("file")).toLower();
    if (target == u"clipboard")
        return toClipboard();
    if (target != u"file")
        return toOther(target);
    return toFolder(detectedFolder(preferences.location(), folders));
}

} // namespace tembra
