#include "session/ScreenshotRemovalError.h"

#include "platform/Trash.h"

#include <QCoreApplication>

namespace tembra {

namespace {

Error removalError(const char *message) {
    return {QStringLiteral("Tembra.ScreenshotRemoval"),
            1,
            QCoreApplication::translate("ScreenshotRemoval", message),
            {}};
}

} // namespace

Error ScreenshotRemovalError::pinsUnavailable() {
    return removalError(QT_TRANSLATE_NOOP(
        "ScreenshotRemoval", "Some pinned files are unavailable. Reconnect their disk and try again."));
}

Error ScreenshotRemovalError::isPinned() {
    return removalError(QT_TRANSLATE_NOOP("ScreenshotRemoval",
                                          "This screenshot is pinned. Unpin it before moving it to Trash."));
}

Error ScreenshotRemovalError::hasChanged() {
    return removalError(QT_TRANSLATE_NOOP("ScreenshotRemoval", "The original file has changed."));
}

Error ScreenshotRemovalError::folderHasChanged() {
    return removalError(QT_TRANSLATE_NOOP("ScreenshotRemoval", "The original folder has changed."));
}

Error ScreenshotRemovalError::folderUnavailable() {
    return removalError(QT_TRANSLATE_NOOP("ScreenshotRemoval", "The original folder is unavailable."));
}

bool ScreenshotRemovalError::isOfFolder(const Error &error) {
    return error == folderHasChanged() || error == folderUnavailable();
}

Error ScreenshotRemovalError::ofRemoval(const Error &error) {
    const bool isOtherFile = error.domain == Trash::errorDomain &&
                             (error.code == Trash::changed || error.code == Trash::outsideRoot);
    return isOtherFile ? hasChanged() : error;
}

Error ScreenshotRemovalError::ofRestore(const Error &error) {
    if (error.domain != Trash::errorDomain)
        return error;
    switch (error.code) {
    case Trash::notInTrash:
        return removalError(
            QT_TRANSLATE_NOOP("ScreenshotRemoval", "The file could not be located in Trash."));
    case Trash::occupied:
        return removalError(
            QT_TRANSLATE_NOOP("ScreenshotRemoval", "The original file is no longer at this location."));
    case Trash::folderUnavailable:
    case Trash::outsideRoot:
        return folderUnavailable();
    default:
        return error;
    }
}

} // namespace tembra
