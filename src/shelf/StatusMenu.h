#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace tembra {

// What the items of the program's own menu do; one without an action is disabled.
struct StatusMenuActions {
    std::function<void()> open;
    std::function<void()> showSettings;
    std::function<void()> checkForUpdates;
    // Whether that can be done now.
    std::function<bool()> canCheckForUpdates;
    std::function<void()> openFolder;
    std::function<void()> openCapture;
    std::function<void()> quit;
};

// The program's own menu: of the status item, and of the shelf's settings button by a click of the
// other mouse button.
[[nodiscard]] std::unique_ptr<QMenu> statusMenu(const StatusMenuActions &actions);
// Enables what can be done now; a menu does so by itself when it opens, but not every desktop says that it
// opens one.
void validateStatusMenu(const QMenu &menu, const StatusMenuActions &actions);

} // namespace tembra
