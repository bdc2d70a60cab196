#include "controls/ShelfMenu.h"

#include "controls/Theme.h"
#include "controls/Typography.h"

namespace tembra {

namespace {

QString css(const QColor &color) {
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

QString menuStyle(const Theme &theme) {
    return QStringLiteral("QMenu { background: %1; border: 1px solid %2; border-radius: 10px; padding: 5px; }"
                          "QMenu::item { color: %3; padding: 5px 22px 5px 12px; border-radius: 6px; }"
                          "QMenu::item:selected { background: %4; color: %5; }"
                          "QMenu::item:disabled { color: %6; background: transparent; }"
                          "QMenu::icon { padding-left: 8px; }"
                          "QMenu::separator { height: 1px; background: %2; margin: 5px 10px; }")
        .arg(css(theme.popup), css(theme.popupBorder), css(theme.text), css(theme.accent),
             css(theme.onAccent), css(theme.secondaryText));
}

} // namespace

ShelfMenu::ShelfMenu(QWidget *parent) : QMenu(parent) {
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowFlag(Qt::NoDropShadowWindowHint);
    setFont(typography::font(typography::itemSize));
    setStyleSheet(menuStyle(Theme::of(*this)));
    // What an assistive program chooses leaves it open.
    connect(this, &QMenu::triggered, this, &QWidget::close);
}

QAction *ShelfMenu::add(const QString &title, const std::function<void()> &action) {
    QAction *item = addAction(title);
    item->setEnabled(action != nullptr);
    if (action)
        connect(item, &QAction::triggered, item, action);
    return item;
}

ShelfMenu *ShelfMenu::addSubmenu(const QString &title) {
    auto *submenu = new ShelfMenu(this);
    submenu->setTitle(title);
    addMenu(submenu);
    return submenu;
}

} // namespace tembra
