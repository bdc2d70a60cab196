#pragma once

#include <QKeySequence>
#include <QString>

#include <vector>

namespace tembra {

// One row of a menu: a separator when it has no title. `selector` names what the item does: a method of the
// first responder, or a signal of MainMenu when `ofProgram` is set.
struct MainMenuItem {
    QString title;
    QKeySequence key;
    QString selector;
    bool ofProgram = false;
};

struct MainMenuSection {
    QString title;
    std::vector<MainMenuItem> items;
};

[[nodiscard]] std::vector<MainMenuSection> mainMenuSections();

} // namespace tembra
