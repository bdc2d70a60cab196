#include "controls/AccessibleProgram.h"

#include "controls/TembraDropdownPopup.h"

#include <QAccessibleObject>
#include <QApplication>
#include <QMenu>

namespace tembra {

namespace {

// A submenu belongs to the item that it opens from, and a dropdown's list to the dropdown.
bool standsAlone(const QWidget &window) {
    const QWidget *owner = window.parentWidget();
    if (qobject_cast<const QMenu *>(&window))
        return !qobject_cast<const QMenu *>(owner);
    return qobject_cast<const DropdownList *>(&window) && !qobject_cast<const TembraDropdownPopup *>(owner);
}

QWidgetList openMenus() {
    QWidgetList menus;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && standsAlone(*window))
            menus.append(window);
    }
    return menus;
}

class AccessibleProgram final : public QAccessibleApplication {
public:
    [[nodiscard]] int childCount() const override {
        return QAccessibleApplication::childCount() + static_cast<int>(openMenus().size());
    }
    [[nodiscard]] QAccessibleInterface *child(int index) const override {
        const int windows = QAccessibleApplication::childCount();
        if (index < windows)
            return QAccessibleApplication::child(index);
        return QAccessible::queryAccessibleInterface(openMenus().value(index - windows));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override {
        const int window = QAccessibleApplication::indexOfChild(child);
        const auto menu = child ? openMenus().indexOf(qobject_cast<QWidget *>(child->object())) : -1;
        return window >= 0 || menu < 0 ? window
                                       : QAccessibleApplication::childCount() + static_cast<int>(menu);
    }
};

QAccessibleInterface *accessibleProgram(const QString &, QObject *object) {
    return object == qApp ? new AccessibleProgram : nullptr;
}

} // namespace

void installAccessibleProgram() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleProgram);
}

} // namespace tembra
