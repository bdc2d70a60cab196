#include "shelf/StatusItem.h"

#include "controls/Icons.h"
#include "controls/Palette.h"

#include <QIconEngine>
#include <QMenu>

#include <algorithm>

namespace tembra {

namespace {

// Drawn when the desktop asks for it: on one without a place for it never.
class StatusIconEngine final : public QIconEngine {
public:
    void paint(QPainter *painter, const QRect &rectangle, QIcon::Mode, QIcon::State) override {
        drawIcon(*painter, Icon::statusBar, rectangle, rectangle.height(), palette::text);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override {
        return iconPixmap(Icon::statusBar, std::min(size.width(), size.height()), 1, palette::text);
    }
    // By it a desktop that has the icon draws it in the colour of its panel.
    QString iconName() override {
        const QString name = QStringLiteral("app.tembra.Tembra-symbolic");
        return QIcon::hasThemeIcon(name) ? name : QString();
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        return {{16, 16}, {22, 22}, {24, 24}, {32, 32}, {48, 48}};
    }
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine *clone() const override { return new StatusIconEngine; }
};

} // namespace

StatusItem::StatusItem(const StatusMenuActions &actions)
    : m_actions(actions), m_menu(statusMenu(actions)), m_icon(QIcon(new StatusIconEngine)) {
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
