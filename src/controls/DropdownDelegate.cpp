#include "controls/DropdownDelegate.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"

#include <QPainter>

namespace tembra {

DropdownDelegate::DropdownDelegate(int chosen, QWidget *list)
    : QStyledItemDelegate(list), m_chosen(chosen), m_list(*list) {}

QSize DropdownDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
    const QString title = index.data().toString();
    return {option.fontMetrics.horizontalAdvance(title) + surroundings, rowHeight};
}

void DropdownDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const {
    constexpr int tickSide = 16;
    constexpr int tickMargin = 7;
    const Theme &theme = Theme::of(m_list);
    const bool isMarked = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isMarked)
        drawField(*painter, option.rect, 6, theme.accent);
    const QColor ink = isMarked ? theme.onAccent : theme.text;
    const QRect tick =
        QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, {tickSide, tickSide},
                            option.rect.adjusted(tickMargin, 0, -tickMargin, 0));
    if (index.row() == m_chosen)
        drawTick(*painter, tick, ink);
    const QRect title = option.direction == Qt::RightToLeft
                            ? option.rect.adjusted(tickMargin, 0, -(2 * tickMargin + tickSide), 0)
                            : option.rect.adjusted(2 * tickMargin + tickSide, 0, -tickMargin, 0);
    painter->setFont(option.font);
    painter->setPen(ink);
    painter->drawText(title, QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, title.width()));
    painter->restore();
}

} // namespace tembra
