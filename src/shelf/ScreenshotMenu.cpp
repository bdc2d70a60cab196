#include "shelf/ScreenshotMenu.h"

#include "controls/ShelfMenu.h"

#include <QCoreApplication>

namespace tembra {

namespace {

QString text(const char *source) {
    return QCoreApplication::translate("ScreenshotMenu", source);
}

void addApplications(ShelfMenu &menu, const std::vector<Workspace::Application> &applications,
                     const std::function<void(const QString &)> &openWith) {
    if (applications.empty()) {
        menu.add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "No Compatible Applications")), {});
        return;
    }
    for (const Workspace::Application &application : applications) {
        const QString title = application.isDefault
                                  ? application.name + text(QT_TRANSLATE_NOOP("ScreenshotMenu", " (Default)"))
                                  : application.name;
        QAction *item = menu.add(QString(title).replace(u'&', QStringLiteral("&&")),
                                 [openWith, identifier = application.identifier] { openWith(identifier); });
        item->setIcon(application.icon);
    }
}

} // namespace

std::unique_ptr<QMenu> screenshotApplicationsMenu(const std::vector<Workspace::Application> &applications,
                                                  const std::function<void(const QString &)> &openWith) {
    auto menu = std::make_unique<ShelfMenu>();
    addApplications(*menu, applications, openWith);
    return menu;
}

std::unique_ptr<QMenu> screenshotMenu(const ScreenshotMenuState &state,
                                      const ScreenshotMenuActions &actions) {
    auto menu = std::make_unique<ShelfMenu>();
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Copy")), actions.copy);
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Open in Editor")), actions.openInEditor)
        ->setEnabled(state.canEdit);
    addApplications(*menu->addSubmenu(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Open With"))),
                    state.applications, actions.openWith);
    if (state.offersRecognition)
        menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Image to Text")), actions.recognize)
            ->setEnabled(state.canRecognize);
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Show in Finder")), actions.reveal);
    menu->addSeparator();
    const bool areAllPinned = state.pinnedCount == state.selectedCount;
    menu->add(text(areAllPinned ? QT_TRANSLATE_NOOP("ScreenshotMenu", "Unpin")
                                : QT_TRANSLATE_NOOP("ScreenshotMenu", "Pin")),
              actions.togglePins);
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Move to Trash")), actions.trash)
        ->setEnabled(!areAllPinned);
    if (state.pinnedCount > 0)
        menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu",
                                         "Pinned screenshots stay. Unpin them to move them to Trash.")),
                  {});
    return menu;
}

std::unique_ptr<QMenu> screenshotBackgroundMenu(const ScreenshotBackgroundMenuActions &actions) {
    auto menu = std::make_unique<ShelfMenu>();
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Open Folder in Finder")), actions.openFolder);
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Screenshot Settings")), actions.showSettings);
    menu->addSeparator();
    menu->add(text(QT_TRANSLATE_NOOP("ScreenshotMenu", "Clear Screenshots")), actions.clear);
    return menu;
}

} // namespace tembra
