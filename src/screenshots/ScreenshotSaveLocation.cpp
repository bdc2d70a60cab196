#include "screenshots/ScreenshotSaveLocation.h"

#include "platform/ScreenCapturePreferences.h"
#include "settings/CocoaError.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScreenshotSaveLocation", source);
}

tl::unexpected<Error> notTaken() {
    return failure(
        {ScreenshotSaveLocation::errorDomain, 1,
         text(QT_TRANSLATE_NOOP("ScreenshotSaveLocation", "Couldn’t change the macOS screenshot folder.")),
         text(QT_TRANSLATE_NOOP("ScreenshotSaveLocation",
                                "Your previous folder is still selected. Try again, or change "
                                "Save to in ⇧⌘5 → Options."))});
}

} // namespace

Result<void> ScreenshotSaveLocation::setFolder(const QString &folder, ScreenCapturePreferences &preferences) {
    if (!folder.startsWith(u'/') || !QFileInfo(folder).isWritable())
        return cocoaFailure(
            CocoaError::fileWriteNoPermission,
            text(QT_TRANSLATE_NOOP("ScreenshotSaveLocation", "“%1” cannot be written to.")).arg(folder));
    const QString fileTarget = QStringLiteral("file");
    const auto previousLocation = preferences.location();
    const auto previousTarget = preferences.target();
    preferences.setLocation(folder);
    preferences.setTarget(fileTarget);
    preferences.synchronize();
    if (preferences.location() == folder && preferences.target().value_or(fileTarget) == fileTarget)
        return {};
    preferences.setLocation(previousLocation);
    preferences.setTarget(previousTarget);
    preferences.synchronize();
    return notTaken();
}

} // namespace tembra
