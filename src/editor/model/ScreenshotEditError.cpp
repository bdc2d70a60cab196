#include "editor/model/ScreenshotEditError.h"

#include <QCoreApplication>

namespace tembra {

namespace {

const char *sentence(ScreenshotEditError::Code code) {
    switch (code) {
    case ScreenshotEditError::notEditable:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This file can’t be edited.");
    case ScreenshotEditError::unsupportedType:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "The editor currently supports PNG and JPEG images.");
    case ScreenshotEditError::changedBeforeOpening:
        return QT_TRANSLATE_NOOP("ScreenshotEdit",
                                 "This image changed outside Tembra. Make a copy to edit it as a new image.");
    case ScreenshotEditError::unreadableOriginal:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "The original image couldn’t be opened.");
    case ScreenshotEditError::unreadableAnnotation:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This annotation couldn’t be opened.");
    case ScreenshotEditError::unreadableCrop:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This crop couldn’t be opened.");
    case ScreenshotEditError::changedBeforeSaving:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This image changed outside Tembra. Your edits are still "
                                                   "here. Use Save a copy to keep them.");
    case ScreenshotEditError::emptyName:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "Enter a name for this screenshot.");
    case ScreenshotEditError::forbiddenName:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "Choose a name without slashes, colons or a leading dot.");
    case ScreenshotEditError::changedBeforeRenaming:
        return QT_TRANSLATE_NOOP("ScreenshotEdit",
                                 "This image changed outside Tembra. Its name hasn’t been changed.");
    case ScreenshotEditError::unreadableImage:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This image couldn’t be opened.");
    case ScreenshotEditError::notEnoughMemory:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "There isn’t enough memory to save this image.");
    case ScreenshotEditError::notPrepared:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "Couldn’t prepare the image.");
    case ScreenshotEditError::unsupportedFormat:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "This image format can’t be saved.");
    case ScreenshotEditError::notEncoded:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "Couldn’t encode the image.");
    case ScreenshotEditError::noBlur:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "Couldn’t prepare the blur.");
    case ScreenshotEditError::unreadableEdits:
        return QT_TRANSLATE_NOOP("ScreenshotEdit", "The edits are not readable JSON.");
    }
    return "";
}

} // namespace

Error ScreenshotEditError::of(Code code) {
    return {domain, code, QCoreApplication::translate("ScreenshotEdit", sentence(code)), {}};
}

} // namespace tembra
