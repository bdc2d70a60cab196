#include "shelf/ScreenshotPreviewImageView.h"

#include "controls/DevicePixels.h"
#include "controls/Palette.h"

#include <QPainter>

#include <algorithm>

namespace tembra {

ScreenshotPreviewImageView::ScreenshotPreviewImageView(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ScreenshotPreviewImageView::setImage(const QImage &image) {
    m_image = image;
    update();
}

QRectF ScreenshotPreviewImageView::fitted(const QImage &image, const QRectF &rectangle) {
    const QSizeF size = QSizeF(image.size()).scaled(rectangle.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    QRectF result(QPointF(), size);
    result.moveCenter(rectangle.center());
    return result;
}

void ScreenshotPreviewImageView::draw(QPainter &painter, const QRectF &place, const QImage &image,
                                      qreal radius) {
    const QRectF rectangle = onDevicePixels(painter, place);
    const qreal hairline = 1 / painter.device()->devicePixelRatioF();
    const qreal corner = std::min(radius, std::min(rectangle.width(), rectangle.height()) / 2);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // Filling with a brush, unlike clipping, gives smooth corners. Its scale is told by the transformation
    // alone.
    QImage texture = image;
    texture.setDevicePixelRatio(1);
    QBrush brush(texture);
    QTransform toRectangle = QTransform::fromTranslate(rectangle.x(), rectangle.y());
    toRectangle.scale(rectangle.width() / image.width(), rectangle.height() / image.height());
    brush.setTransform(toRectangle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rectangle, corner, corner);
    painter.setPen(QPen(palette::previewBorder, hairline));
    painter.setBrush(Qt::NoBrush);
    const qreal half = hairline / 2;
    painter.drawRoundedRect(rectangle.adjusted(half, half, -half, -half), corner - half, corner - half);
    painter.restore();
}

void ScreenshotPreviewImageView::paintEvent(QPaintEvent *) {
    if (m_image.isNull())
        return;
    QPainter painter(this);
    draw(painter, fitted(m_image, rect()), m_image);
}

} // namespace tembra
