#include "platform/linux/desktop/DesktopPaths.h"

#include <QCoreApplication>

namespace tembra {

namespace {

using State = Finding::State;

Finding finding(State state, const char *text, const char *remedy = "") {
    const auto translated = [](const char *source) {
        return *source ? QCoreApplication::translate("DesktopPaths", source) : QString();
    };
    return {state, translated(text), translated(remedy)};
}

Finding findingOf(DesktopPaths::Windows windows) {
    using Windows = DesktopPaths::Windows;
    switch (windows) {
    case Windows::x11:
        return finding(State::ok,
                       QT_TRANSLATE_NOOP("DesktopPaths", "X11, with a compositor. Nothing is missing."));
    case Windows::x11Uncomposited:
        return finding(
            State::limited,
            QT_TRANSLATE_NOOP("DesktopPaths",
                              "X11, without a compositor: the shelf’s corners are not see-through."),
            QT_TRANSLATE_NOOP("DesktopPaths", "Start a compositor, for example picom."));
    case Windows::xwayland:
        return finding(
            State::limited,
            QT_TRANSLATE_NOOP(
                "DesktopPaths",
                "Wayland, through its X server, because this desktop gives programs no place at the edge "
                "of the screen. Over windows of other programs the pointer may go unnoticed there."),
            QT_TRANSLATE_NOOP(
                "DesktopPaths",
                "Bind the command “tembra toggle” to a key in the keyboard settings of the desktop."));
    case Windows::layerShell:
        return finding(
            State::ok,
            QT_TRANSLATE_NOOP("DesktopPaths", "Wayland, as a layer of the desktop. Nothing is missing."));
    case Windows::unusedLayerShell:
        return finding(
            State::limited,
            QT_TRANSLATE_NOOP("DesktopPaths",
                              "Wayland, through its X server, although this desktop could do without."),
            QT_TRANSLATE_NOOP("DesktopPaths",
                              "Install Qt’s Wayland platform (sudo apt install qt6-wayland) and start Tembra "
                              "without QT_QPA_PLATFORM."));
    case Windows::plainWayland:
        break;
    }
    return finding(
        State::broken,
        QT_TRANSLATE_NOOP("DesktopPaths",
                          "Wayland, on a desktop that gives programs no place at the edge of the screen."),
        QT_TRANSLATE_NOOP("DesktopPaths", "Install the desktop’s X server, Xwayland, and log in again."));
}

Finding findingOf(DesktopPaths::Clipboard clipboard) {
    using Clipboard = DesktopPaths::Clipboard;
    switch (clipboard) {
    case Clipboard::x11:
        return finding(State::ok, QT_TRANSLATE_NOOP("DesktopPaths", "Through the X server."));
    case Clipboard::dataControl:
        return finding(
            State::ok,
            QT_TRANSLATE_NOOP("DesktopPaths", "Through the desktop’s data control, also in the background."));
    case Clipboard::focusedOnly:
        break;
    }
    return finding(
        State::limited,
        QT_TRANSLATE_NOOP(
            "DesktopPaths",
            "This desktop lets only the program with the keyboard use the clipboard. New screenshots may "
            "not be copied by themselves."),
        QT_TRANSLATE_NOOP("DesktopPaths", "Select the screenshot in the shelf and press Ctrl+C."));
}

Finding findingOf(DesktopPaths::Shortcut shortcut) {
    using Shortcut = DesktopPaths::Shortcut;
    switch (shortcut) {
    case Shortcut::grab:
        return finding(State::ok, QT_TRANSLATE_NOOP("DesktopPaths", "Keys are taken from the X server."));
    case Shortcut::portal:
        return finding(State::ok,
                       QT_TRANSLATE_NOOP("DesktopPaths", "Keys are asked of the desktop’s portal."));
    case Shortcut::none:
        break;
    }
    return finding(State::limited,
                   QT_TRANSLATE_NOOP("DesktopPaths", "This desktop lets programs have no keys of their own."),
                   QT_TRANSLATE_NOOP(
                       "DesktopPaths",
                       "Bind the command “tembra toggle” to a key in the keyboard settings of the desktop."));
}

Finding statusItemFinding(bool isShown) {
    if (isShown)
        return finding(State::ok, QT_TRANSLATE_NOOP("DesktopPaths", "This desktop shows status items."));
    return finding(
        State::limited, QT_TRANSLATE_NOOP("DesktopPaths", "This desktop shows no status items."),
        QT_TRANSLATE_NOOP("DesktopPaths",
                          "Start Tembra once more to open the shelf, or use “tembra toggle”. Under GNOME the "
                          "extension AppIndicator shows status items."));
}

} // namespace

DesktopFindings DesktopPaths::findings() const {
    return {.windows = findingOf(windows),
            .clipboard = findingOf(clipboard),
            .shortcut = findingOf(shortcut),
            .statusItem = statusItemFinding(hasStatusItems),
            .noFolderEvents = finding(
                State::broken, QT_TRANSLATE_NOOP("DesktopPaths", "A new file in the folder was not noticed."),
                QT_TRANSLATE_NOOP(
                    "DesktopPaths",
                    "Let programs watch more folders: sudo sysctl fs.inotify.max_user_watches=524288")),
            .missingLanguages = finding(
                State::limited, QT_TRANSLATE_NOOP("DesktopPaths", "Text is read in: %1. Not installed: %2."),
                QT_TRANSLATE_NOOP("DesktopPaths",
                                  "Install the language’s data: sudo apt install tesseract-ocr-%1"))};
}

} // namespace tembra
