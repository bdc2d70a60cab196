#include "shelf/StatusItem.h"

#include "controls/Icons.h"
#include "controls/Palette.h"

#include <QMenu>

namespace tembra {

namespace {

QIcon statusIcon() {
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48})
        icon.addPixmap(iconPixmap(Icon::statusBar, side, 1, palette::text));
    return icon;
}

} // namespace

StatusItem::StatusItem(const StatusMenuActions &actions) : m_menu(statusMenu(actions)), m_icon(statusIcon()) {
    m_icon.setToolTip(QStringLiteral("Tembra"));
    m_icon.setContextMenu(m_menu.get());
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, &m_icon,
                     [open = actions.open](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger && open)
                             open();
                     });
    m_icon.show();
}

StatusItem::~StatusItem() = default;

} // namespace tembra
