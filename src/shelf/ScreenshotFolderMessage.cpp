#include "shelf/ScreenshotFolderMessage.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScreenshotFolderMessage", source);
}

// A question with the button that answers it.
ScreenshotMessage asking(const char *title, const char *detail) {
    return {.title = text(title),
            .text = detail ? text(detail) : QString(),
            .action = text(QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "Choose Folder"))};
}

constexpr const char *question = QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "Where should screenshots go?");

} // namespace

std::optional<ScreenshotMessage> screenshotFolderMessage(ScreenshotFolderState state) {
    switch (state) {
    case ScreenshotFolderState::ready:
        return std::nullopt;
    case ScreenshotFolderState::none:
        return asking(question, nullptr);
    case ScreenshotFolderState::loading:
        return ScreenshotMessage{
            .text = text(QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "Loading screenshots…")),
            .isLoading = true};
    case ScreenshotFolderState::elsewhere:
        return asking(question, QT_TRANSLATE_NOOP("ScreenshotFolderMessage",
                                                  "Screenshots are saved elsewhere. Choose the new folder."));
    case ScreenshotFolderState::clipboard:
        return asking(question,
                      QT_TRANSLATE_NOOP("ScreenshotFolderMessage",
                                        "Screenshots go to the clipboard. Choose a folder to save them."));
    case ScreenshotFolderState::other:
        return asking(question, QT_TRANSLATE_NOOP(
                                    "ScreenshotFolderMessage",
                                    "Screenshots aren’t saved to a folder. Choose one to use with Tembra."));
    case ScreenshotFolderState::missing:
        return asking(
            QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "Where did the folder go?"),
            QT_TRANSLATE_NOOP("ScreenshotFolderMessage",
                              "I lost track of your screenshots folder. Pick a new one to keep going"));
    }
    return std::nullopt;
}

ScreenshotMessage emptyFolderMessage() {
    return {.title = text(QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "No screenshots yet")),
            .text = text(QT_TRANSLATE_NOOP("ScreenshotFolderMessage", "Take one and it appears here."))};
}

} // namespace tembra
