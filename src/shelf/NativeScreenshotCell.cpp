#include "shelf/NativeScreenshotCell.h"

#include "controls/Icons.h"
#include "controls/Palette.h"
#include "shelf/ScreenshotPreviewImageView.h"

#include <QPainter>

namespace tembra {

void NativeScreenshotCell::setTile(const FileTile &tile) {
    FileItemCell::setTile(tile);
    setPinned(tile.isPinned);
    setEdited(tile.isEdited);
}

void NativeScreenshotCell::setPinned(bool pinned) {
    assign(m_pinned, pinned);
}

void NativeScreenshotCell::setEdited(bool edited) {
    assign(m_edited, edited);
}

void NativeScreenshotCell::assign(bool &badge, bool value) {
    if (badge == value)
        return;
    badge = value;
    update();
}

void NativeScreenshotCell::paintBadges(QPainter &painter) {
    constexpr QRectF badge(70, 0, 18, 18);
    constexpr qreal pinSide = 11;
    if (m_edited)
        paintEdited(painter);
    if (!m_pinned)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::pinBadge);
    painter.drawEllipse(badge);
    drawIcon(painter, Icon::pin, badge, pinSide, palette::onPinBadge);
}

// A dot on the corner of the picture, set off from it by a ring of the panel's colour.
void NativeScreenshotCell::paintEdited(QPainter &painter) const {
    constexpr qreal radius = 4.5;
    constexpr qreal ring = 1.5;
    const QImage picture = image();
    const QRectF frame =
        picture.isNull() ? QRectF(iconFrame) : ScreenshotPreviewImageView::fitted(picture, iconFrame);
    const QPointF centre = frame.bottomRight() - QPointF(radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::panel);
    painter.drawEllipse(centre, radius + ring, radius + ring);
    painter.setBrush(palette::accent);
    painter.drawEllipse(centre, radius, radius);
}

} // namespace tembra
