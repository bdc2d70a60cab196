#include "shelf/DragPreview.h"

#include "controls/Palette.h"
#include "controls/Typography.h"
#include "shelf/ScreenshotPreviewImageView.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

constexpr QSize size{96, 76};
constexpr QRectF picture{-36, -26, 72, 52};
// From the hindmost to the foremost, in degrees.
constexpr std::array turns{-7.0, 5.0, 0.0};

void paintPile(QPainter &painter, const QList<QImage> &pictures) {
    const auto shown = std::min<qsizetype>(pictures.size(), turns.size());
    for (qsizetype i = shown - 1; i >= 0; --i) {
        painter.save();
        painter.translate(size.width() / 2.0, size.height() / 2.0);
        painter.rotate(turns.at(turns.size() - 1 - static_cast<std::size_t>(i)));
        ScreenshotPreviewImageView::draw(painter, ScreenshotPreviewImageView::fitted(pictures[i], picture),
                                         pictures[i]);
        painter.restore();
    }
}

void paintCount(QPainter &painter, int count) {
    painter.setFont(typography::font(typography::captionSize, QFont::DemiBold));
    const QString text = QString::number(count);
    constexpr int height = 20;
    QRectF badge(0, 0, std::max(height, painter.fontMetrics().horizontalAdvance(text) + 12), height);
    badge.moveTopRight({size.width() - 1.0, 1.0});
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::accent);
    painter.drawRoundedRect(badge, height / 2.0, height / 2.0);
    painter.setPen(palette::onAccent);
    painter.drawText(badge, Qt::AlignCenter, text);
}

} // namespace

QPixmap dragPreview(const QList<QImage> &pictures, int count, qreal scale) {
    QPixmap pixmap(size * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setOpacity(0.92);
    paintPile(painter, pictures);
    painter.setOpacity(1);
    if (count > 1)
        paintCount(painter, count);
    return pixmap;
}

} // namespace tembra
