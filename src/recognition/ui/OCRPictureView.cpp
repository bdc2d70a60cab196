#include "recognition/ui/OCRPictureView.h"

#include "controls/Palette.h"

#include <QPainter>
#include <QPainterPath>

namespace tembra {

OCRPictureView::OCRPictureView(QWidget *parent) : QWidget(parent) {
    setAccessibleName(tr("The image with this text"));
}

void OCRPictureView::setPicture(const QImage &picture) {
    if (picture.cacheKey() == m_picture.cacheKey())
        return;
    m_picture = picture;
    m_scaled = {};
    update();
}

QSize OCRPictureView::sizeWithin(const QSize &room) const {
    if (m_picture.isNull() || room.isEmpty())
        return {};
    const QSize own = m_picture.deviceIndependentSize().toSize();
    const QSize fitting = own.scaled(room, Qt::KeepAspectRatio);
    return (own.width() < fitting.width() ? own : fitting).expandedTo({1, 1});
}

void OCRPictureView::paintEvent(QPaintEvent *) {
    constexpr qreal radius = 6;
    const qreal scale = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * scale).toSize();
    if (m_picture.isNull() || pixels.isEmpty())
        return;
    if (m_scaled.size() != pixels) {
        m_scaled =
            QPixmap::fromImage(m_picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(scale);
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_scaled);
    painter.drawRoundedRect(rect(), radius, radius);
    painter.setPen(QPen(palette::previewBorder, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

} // namespace tembra
