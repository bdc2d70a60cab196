#include "app/MainMenu.h"

#include "app/MainMenuItems.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QWidget>

namespace tembra {

namespace {

QMetaMethod invokable(const QObject &object, const QString &selector) {
    const QMetaObject *meta = object.metaObject();
    const int index = meta->indexOfMethod((selector + QStringLiteral("()")).toLatin1().constData());
    const QMetaMethod method = index < 0 ? QMetaMethod() : meta->method(index);
    return method.methodType() == QMetaMethod::Signal ? QMetaMethod() : method;
}

// The focused widget or the nearest of its parents that answers; without a focused widget the active window
// is asked.
QWidget *responder(const QString &selector) {
    QWidget *widget =
        QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    while (widget && !invokable(*widget, selector).isValid())
        widget = widget->parentWidget();
    return widget;
}

} // namespace

MainMenu::MainMenu(QObject *parent) : QObject(parent) {
    build();
}

MainMenu::~MainMenu() = default;

void MainMenu::build() {
    for (const MainMenuSection &section : mainMenuSections()) {
        auto menu = std::make_unique<QMenu>(section.title);
        for (const MainMenuItem &item : section.items) {
            if (item.title.isEmpty()) {
                menu->addSeparator();
                continue;
            }
            QAction *action = menu->addAction(item.title);
            action->setObjectName(item.selector);
            action->setShortcut(item.key);
            action->setMenuRole(QAction::NoRole);
            if (item.ofProgram)
                connect(action, &QAction::triggered, this, [this, selector = item.selector.toLatin1()] {
                    QMetaObject::invokeMethod(this, selector.constData());
                });
            else
                connectToResponders(action, item.selector);
        }
        connect(menu.get(), &QMenu::aboutToShow, this, [this, shown = menu.get()] { validate(*shown); });
        m_menus.push_back(std::move(menu));
    }
    m_windowsMenu = m_menus.back().get();
}

void MainMenu::connectToResponders(QAction *action, const QString &selector) {
    action->setData(selector);
    connect(action, &QAction::triggered, this, [selector] {
        if (QWidget *target = responder(selector))
            invokable(*target, selector).invoke(target);
    });
}

// An item is enabled again when its menu closes, since a disabled action's key equivalent is dead.
void MainMenu::validate(const QMenu &menu) const {
    for (QAction *action : menu.actions()) {
        const QString selector = action->data().toString();
        if (selector.isEmpty())
            continue;
        action->setEnabled(responder(selector) != nullptr);
        connect(
            &menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); },
            Qt::SingleShotConnection);
    }
}

void MainMenu::addTo(QMenuBar &bar) const {
    for (const auto &menu : m_menus)
        bar.addMenu(menu.get());
}

QList<QMenu *> MainMenu::menus() const {
    QList<QMenu *> menus;
    for (const auto &menu : m_menus)
        menus.append(menu.get());
    return menus;
}

QAction *MainMenu::action(const QString &selector) const {
    for (const auto &menu : m_menus) {
        if (auto *found = menu->findChild<QAction *>(selector, Qt::FindDirectChildrenOnly))
            return found;
    }
    return nullptr;
}

} // namespace tembra
