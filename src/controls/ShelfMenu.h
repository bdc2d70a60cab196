#pragma once

#include <QMenu>

namespace tembra {

// A menu in the shelf's colours. The program's own, so that it is dark beside the dark panel whatever the
// desktop's style is.
class ShelfMenu final : public QMenu {
    Q_OBJECT

public:
    explicit ShelfMenu(QWidget *parent = nullptr);
    // A submenu in the same colours, owned by this one.
    ShelfMenu *addSubmenu(const QString &title);
};

} // namespace tembra
