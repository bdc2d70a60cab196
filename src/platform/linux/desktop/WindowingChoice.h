#pragma once

#include <QByteArray>

namespace tembra {

// What Qt is to run on, for a panel at the edge of the screen.
struct WindowingChoice {
    struct Facts {
        // What the user chose (QT_QPA_PLATFORM).
        bool isChosenByUser = false;
        bool hasXServer = false;
        bool hasCompositor = false;
        // The compositor lets programs put windows at the edge of the screen.
        bool hasLayerShell = false;
    };

    // The name of Qt's platform, with that of the next best after a semicolon: the plugin may not be
    // installed. Nothing leaves it to Qt.
    QByteArray platform;
    // Should it be Wayland, windows can be put where they belong.
    bool placesWindows = false;
    // What will not work, for the log, in English.
    QByteArray note;

    [[nodiscard]] static WindowingChoice of(const Facts &facts);
    [[nodiscard]] static Facts ofSession();
};

} // namespace tembra
