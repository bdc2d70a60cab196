#pragma once

#include <QString>

namespace tembra {

// What the screenshots tab says in place of the grid. Empty parts are not shown.
struct ScreenshotMessage {
    QString title;
    QString text;
    // The title of the button that answers.
    QString action;
    bool isLoading = false;

    bool operator==(const ScreenshotMessage &) const = default;
};

} // namespace tembra
