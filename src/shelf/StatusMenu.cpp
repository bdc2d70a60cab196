#include "shelf/StatusMenu.h"

#include "controls/ShelfMenu.h"

#include <QCoreApplication>

namespace tembra {

namespace {

const QString checkForUpdates = QStringLiteral("checkForUpdates");

QString text(const char *source) {
    return QCoreApplication::translate("StatusMenu", source);
}

} // namespace

std::unique_ptr<QMenu> statusMenu(const StatusMenuActions &actions) {
    auto menu = std::make_unique<ShelfMenu>();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Tembra")), actions.open);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Settings")), actions.showSettings);
    menu->addSeparator();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Check for updates…")), actions.checkForUpdates)
        ->setObjectName(checkForUpdates);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Screenshots Folder")), actions.openFolder);
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Open Latest Capture")), actions.openCapture);
    menu->addSeparator();
    menu->add(text(QT_TRANSLATE_NOOP("StatusMenu", "Quit Tembra")), actions.quit);
    QObject::connect(menu.get(), &QMenu::aboutToShow, menu.get(),
                     [menu = menu.get(), actions] { validateStatusMenu(*menu, actions); });
    validateStatusMenu(*menu, actions);
    return menu;
}

void validateStatusMenu(const QMenu &menu, const StatusMenuActions &actions) {
    if (auto *item = menu.findChild<QAction *>(checkForUpdates, Qt::FindDirectChildrenOnly))
        item->setEnabled(actions.checkForUpdates && actions.canCheckForUpdates &&
                         actions.canCheckForUpdates());
}

} // namespace tembra
