#include "shelf/StatusMenu.h"

#include "controls/ShelfMenu.h"

#include <QCoreApplication>

namespace tembra {

namespace {

void add(QMenu &menu, const char *text, const std::function<void()> &action) {
    QAction *item = menu.addAction(QCoreApplication::translate("StatusMenu", text));
    item->setEnabled(action != nullptr);
    if (action)
        QObject::connect(item, &QAction::triggered, item, action);
}

} // namespace

std::unique_ptr<QMenu> statusMenu(const StatusMenuActions &actions) {
    auto menu = std::make_unique<ShelfMenu>();
    add(*menu, QT_TRANSLATE_NOOP("StatusMenu", "Open Tembra"), actions.open);
    add(*menu, QT_TRANSLATE_NOOP("StatusMenu", "Settings"), actions.showSettings);
    menu->addSeparator();
    add(*menu, QT_TRANSLATE_NOOP("StatusMenu", "Check for updates…"), actions.checkForUpdates);
    add(*menu, QT_TRANSLATE_NOOP("StatusMenu", "Open Screenshots Folder"), actions.openFolder);
    menu->addSeparator();
    add(*menu, QT_TRANSLATE_NOOP("StatusMenu", "Quit Tembra"), actions.quit);
    return menu;
}

} // namespace tembra
