#include "shelf/NativeScreenshotCell.h"

#include "controls/Icons.h"
#include "controls/Palette.h"

#include <QPainter>

namespace tembra {

void NativeScreenshotCell::setTile(const FileTile &tile) {
    FileItemCell::setTile(tile);
    setPinned(tile.isPinned);
}

void NativeScreenshotCell::setPinned(bool pinned) {
    if (m_pinned == pinned)
        return;
    m_pinned = pinned;
    setAccessibleDescription(pinned ? tr("Pinned") : QString());
    update();
}

void NativeScreenshotCell::paintBadges(QPainter &painter) {
    constexpr QRectF badge(70, 0, 18, 18);
    constexpr qreal pinSide = 11;
    if (!m_pinned)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::pinBadge);
    painter.drawEllipse(badge);
    drawIcon(painter, Icon::pin, badge, pinSide, palette::onPinBadge);
}

} // namespace tembra
