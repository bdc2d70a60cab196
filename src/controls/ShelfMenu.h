#pragma once

#include <QMenu>

#include <functional>

namespace tembra {

// A menu in the colours of the widget that it belongs to, the shelf's where it belongs to none. The program's
// own, so that it is dark beside the dark panel whatever the desktop's style is.
class ShelfMenu final : public QMenu {
    Q_OBJECT

public:
    explicit ShelfMenu(QWidget *parent = nullptr);
    // An item without an action is disabled.
    QAction *add(const QString &title, const std::function<void()> &action);
    // A submenu in the same colours, owned by this one.
    ShelfMenu *addSubmenu(const QString &title);
};

} // namespace tembra
