#include "app/MainMenuItems.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("MainMenu", source);
}

MainMenuItem separator() {
    return {};
}

MainMenuItem ofProgram(const char *title, const QKeySequence &key, const char *selector) {
    return {text(title), key, QString::fromLatin1(selector), true};
}

MainMenuItem ofResponder(const char *title, const QKeySequence &key, const char *selector) {
    return {text(title), key, QString::fromLatin1(selector), false};
}

MainMenuSection applicationSection() {
    return {QStringLiteral("Tembra"),
            {ofProgram(QT_TRANSLATE_NOOP("MainMenu", "Check for updates…"), {}, "checkForUpdates"),
             separator(),
             ofProgram(QT_TRANSLATE_NOOP("MainMenu", "Hide Tembra"), Qt::CTRL | Qt::Key_H, "hideTembra"),
             ofProgram(QT_TRANSLATE_NOOP("MainMenu", "Hide others"), Qt::CTRL | Qt::ALT | Qt::Key_H,
                       "hideOtherApplications"),
             ofProgram(QT_TRANSLATE_NOOP("MainMenu", "Show all"), {}, "unhideAllApplications"), separator(),
             ofProgram(QT_TRANSLATE_NOOP("MainMenu", "Quit Tembra"), {}, "terminate")}};
}

MainMenuSection fileSection() {
    return {
        text(QT_TRANSLATE_NOOP("MainMenu", "File")),
        {ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Save"), Qt::CTRL | Qt::Key_S, "saveEdit"),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Save as…"), Qt::SHIFT | Qt::CTRL | Qt::Key_S, "saveCopy"),
         separator(),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Close"), Qt::CTRL | Qt::Key_W, "performClose")}};
}

MainMenuSection editSection() {
    return {text(QT_TRANSLATE_NOOP("MainMenu", "Edit")),
            {ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Undo"), Qt::CTRL | Qt::Key_Z, "undoEdit"),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Redo"), Qt::SHIFT | Qt::CTRL | Qt::Key_Z, "redoEdit"),
             separator(), ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Cut"), Qt::CTRL | Qt::Key_X, "cut"),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Copy"), Qt::CTRL | Qt::Key_C, "copy"),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Paste"), Qt::CTRL | Qt::Key_V, "paste"),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Select All"), Qt::CTRL | Qt::Key_A, "selectAll"),
             separator(),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Duplicate"), Qt::CTRL | Qt::Key_D, "duplicateObject"),
             ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Copy image"), Qt::SHIFT | Qt::CTRL | Qt::Key_C,
                         "copyImage")}};
}

MainMenuSection viewSection() {
    return {
        text(QT_TRANSLATE_NOOP("MainMenu", "View")),
        {ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Zoom in"), Qt::CTRL | Qt::Key_Plus, "zoomInClicked"),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Zoom out"), Qt::CTRL | Qt::Key_Minus, "zoomOutClicked"),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Fit"), Qt::CTRL | Qt::Key_0, "fitToWindow"),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Actual size"), Qt::CTRL | Qt::Key_1, "actualSize")}};
}

MainMenuSection windowSection() {
    return {
        text(QT_TRANSLATE_NOOP("MainMenu", "Window")),
        {ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Minimize"), Qt::CTRL | Qt::Key_M, "performMiniaturize"),
         ofResponder(QT_TRANSLATE_NOOP("MainMenu", "Bring all to front"), {}, "arrangeInFront")}};
}

} // namespace

std::vector<MainMenuSection> mainMenuSections() {
    return {applicationSection(), fileSection(), editSection(), viewSection(), windowSection()};
}

} // namespace tembra
