#include "shelf/StatusMenu.h"

#include "controls/ShelfMenu.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("StatusMenu", source);
}

} // namespace

std::unique_ptr<QMenu> statusMenu(const StatusMenuActions &actions) {
    auto menu = std::make_unique<ShelfMenu>();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Tembra")), actions.open);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Settings")), actions.showSettings);
    menu->addSeparator();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Check for updates…")), actions.checkForUpdates);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Screenshots Folder")), actions.openFolder);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Latest Capture")), actions.openCapture);
    menu->addSeparator();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Quit Tembra")), actions.quit);
    return menu;
}

} // namespace tembra
