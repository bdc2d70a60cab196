#include "platform/linux/FileCoordinatorError.h"

#include <QCoreApplication>

namespace tembra {

namespace {

const char *sentence(FileCoordinator::ErrorCode code) {
    switch (code) {
    case FileCoordinator::changed:
        return QT_TRANSLATE_NOOP("FileCoordinator", "Another program changed the file.");
    case FileCoordinator::exists:
        return QT_TRANSLATE_NOOP("FileCoordinator", "A file with this name already exists.");
    case FileCoordinator::notRegular:
        return QT_TRANSLATE_NOOP("FileCoordinator", "This is not a regular file.");
    case FileCoordinator::tooLarge:
        return QT_TRANSLATE_NOOP("FileCoordinator", "The file is too large.");
    }
    return "";
}

} // namespace

Error fileCoordinatorError(FileCoordinator::ErrorCode code) {
    return {FileCoordinator::errorDomain,
            code,
            QCoreApplication::translate("FileCoordinator", sentence(code)),
            {}};
}

} // namespace tembra
