#include "editor/chrome/EditorSidebarDelegate.h"

#include "controls/ControlPainting.h"
#include "controls/DevicePixels.h"
#include "controls/Icons.h"
#include "controls/Theme.h"
#include "editor/chrome/EditorSidebarModel.h"

#include <QPainter>
#include <QPainterPath>

namespace tembra {

namespace {

constexpr qreal radius = 6;

// The part of the picture that fills the tile; nothing where that would hide more than half of it.
QRectF fillingPart(const QImage &image, const QSizeF &tile) {
    const QSizeF picture = image.size();
    const QSizeF part = tile.scaled(picture, Qt::KeepAspectRatio);
    if (part.width() * part.height() * 2 < picture.width() * picture.height())
        return {};
    // A window's title tells more than its foot.
    return {QPointF((picture.width() - part.width()) / 2, 0), part};
}

void paintPicture(QPainter &painter, const QRectF &tile, const QImage &image) {
    QPainterPath outline;
    outline.addRoundedRect(tile, radius, radius);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipPath(outline);
    const QRectF part = fillingPart(image, tile.size());
    if (part.isEmpty()) {
        QRectF whole(QPointF(), QSizeF(image.size()).scaled(tile.size(), Qt::KeepAspectRatio));
        whole.moveCenter(tile.center());
        painter.drawImage(whole, image);
    } else {
        painter.drawImage(tile, image, part);
    }
    painter.restore();
}

void paintMark(QPainter &painter, const QRectF &tile, const QColor &color, const QColor &around,
               bool isHollow) {
    constexpr qreal markRadius = 4.5;
    constexpr qreal ring = 1.5;
    constexpr qreal inset = 9;
    const QPointF center = tile.bottomRight() - QPointF(inset, inset);
    painter.setPen(Qt::NoPen);
    painter.setBrush(around);
    painter.drawEllipse(center, markRadius + ring, markRadius + ring);
    painter.setBrush(color);
    painter.drawEllipse(center, markRadius, markRadius);
    if (!isHollow)
        return;
    painter.setBrush(around);
    painter.drawEllipse(center, markRadius - 2, markRadius - 2);
}

} // namespace

EditorSidebarDelegate::EditorSidebarDelegate(QWidget *sidebar)
    : QStyledItemDelegate(sidebar), m_sidebar(*sidebar) {}

QSize EditorSidebarDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const {
    const int first = index.row() == 0 ? endMargin : 0;
    const int last = index.row() + 1 == index.model()->rowCount() ? endMargin : 0;
    return {tile.width(), pitch + first + last};
}

void EditorSidebarDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const {
    const Theme &theme = Theme::of(m_sidebar);
    const int top = option.rect.top() + gap / 2 + (index.row() == 0 ? endMargin : 0);
    const int left = option.rect.left() + (option.rect.width() - tile.width()) / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF place = onDevicePixels(*painter, QRectF(QPoint(left, top), tile));
    const auto image = index.data(EditorSidebarModel::imageRole).value<QImage>();
    drawField(*painter, place, radius, theme.group);
    if (image.isNull())
        drawIcon(*painter, Icon::photo, place, 20, theme.secondaryText);
    else
        paintPicture(*painter, place, image);
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(isHovered ? theme.secondaryText : theme.dockSeparator, 1));
    painter->drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    if (option.state.testFlag(QStyle::State_Selected)) {
        const qreal away = 3;
        painter->setPen(QPen(m_isFocusShown ? theme.focusRing : theme.accent, m_isFocusShown ? 3 : 2));
        painter->drawRoundedRect(place.adjusted(-away, -away, away, away), radius + away, radius + away);
    }
    if (index.data(EditorSidebarModel::isUnsavedRole).toBool())
        paintMark(*painter, place, theme.unsaved, theme.sidebar, true);
    else if (index.data(EditorSidebarModel::isEditedRole).toBool())
        paintMark(*painter, place, theme.accent, theme.sidebar, false);
    painter->restore();
}

} // namespace tembra
