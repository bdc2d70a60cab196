#include "windows/settings/SettingsSidebarDelegate.h"

#include "controls/ControlPainting.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"

#include <QAbstractItemView>
#include <QPainter>

namespace tembra {

namespace {

constexpr int rowHeight = 36;
constexpr int rowGap = 2;
constexpr int sideMargin = 12;
constexpr int textMargin = 10;
constexpr qreal radius = 8;

} // namespace

SettingsSidebarDelegate::SettingsSidebarDelegate(QAbstractItemView &list)
    : QStyledItemDelegate(&list), m_list(list), m_keyboardFocus(list) {}

QSize SettingsSidebarDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const {
    return {0, rowHeight};
}

void SettingsSidebarDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const {
    const Theme &theme = Theme::of(m_list);
    const bool isCurrent = option.state.testFlag(QStyle::State_Selected);
    const QRectF body = QRectF(option.rect).adjusted(sideMargin, rowGap / 2.0, -sideMargin, -rowGap / 2.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isCurrent)
        drawField(*painter, body, radius, theme.selection);
    if (isCurrent && m_keyboardFocus.isShown())
        drawFocusRing(*painter, body, radius, theme.focusRing);
    if (index.data(isGreyRole).toBool())
        painter->setOpacity(Theme::disabledOpacity);
    painter->setFont(m_list.font());
    const bool isBright = isCurrent || option.state.testFlag(QStyle::State_MouseOver);
    painter->setPen(isBright ? theme.text : theme.secondaryText);
    painter->drawText(
        body.adjusted(textMargin, 0, -textMargin, 0),
        static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter),
        index.data().toString());
    painter->restore();
}

} // namespace tembra
