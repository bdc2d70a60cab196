#pragma once

#include "shelf/StatusMenu.h"

#include <QSystemTrayIcon>

namespace tembra {

// The icon among the desktop's status items (StatusNotifierItem, else the tray of X11). It appears when the
// desktop comes to have such a place, and is nowhere on one without. A click opens the shelf. Main thread.
class StatusItem {
public:
    explicit StatusItem(const StatusMenuActions &actions);
    ~StatusItem();
    StatusItem(const StatusItem &) = delete;
    StatusItem &operator=(const StatusItem &) = delete;

    // What the menu's items can do has changed.
    void validate() const { validateStatusMenu(*m_menu, m_actions); }

private:
    const StatusMenuActions m_actions;
    std::unique_ptr<QMenu> m_menu;
    QSystemTrayIcon m_icon;
};

} // namespace tembra
