#include "shelf/FolderNotification.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("FolderNotification", source);
}

} // namespace

std::optional<QString> folderNotification(std::optional<ScreenshotFolderState> before,
                                          ScreenshotFolderState now) {
    if (before == now)
        return std::nullopt;
    switch (now) {
    case ScreenshotFolderState::elsewhere:
        return text(QT_TRANSLATE_NOOP("FolderNotification", "Screenshot location changed"));
    case ScreenshotFolderState::clipboard:
    case ScreenshotFolderState::other:
        return text(QT_TRANSLATE_NOOP("FolderNotification", "Screenshots aren’t saving to a folder"));
    case ScreenshotFolderState::missing:
        return text(QT_TRANSLATE_NOOP("FolderNotification", "Screenshots folder unavailable"));
    case ScreenshotFolderState::loading:
    case ScreenshotFolderState::ready:
        if (before == ScreenshotFolderState::missing)
            return text(QT_TRANSLATE_NOOP("FolderNotification", "Screenshots folder recovered"));
        return std::nullopt;
    case ScreenshotFolderState::none:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace tembra
