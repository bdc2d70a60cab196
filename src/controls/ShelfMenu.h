#pragma once

#include <QMenu>

#include <functional>

namespace tembra {

// A menu in the shelf's colours. The program's own, so that it is dark beside the dark panel whatever the
// desktop's style is.
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
