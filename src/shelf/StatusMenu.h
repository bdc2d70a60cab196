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
    std::function<void()> openFolder;
    std::function<void()> openCapture;
    std::function<void()> quit;
};

// The program's own menu: of the status item, and where the desktop shows none, of the shelf's settings
// button.
[[nodiscard]] std::unique_ptr<QMenu> statusMenu(const StatusMenuActions &actions);

} // namespace tembra
