#pragma once

#include "platform/Thumbnails.h"

#include <QPainter>

namespace tembra {

// Draws a picture of a window for any path, at once.
class DrawnThumbnails final : public Thumbnails {
public:
    [[nodiscard]] std::unique_ptr<Request> request(const QString &path, double sidePoints, double scale,
                                                   std::function<void(Result<Thumbnail>)> onDone) override {
        const QSizeF points(sidePoints, sidePoints * 0.65);
        QImage image((points * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        const auto hue = static_cast<int>(qHash(path) % 360);
        image.fill(QColor::fromHsv(hue, 12, 250));
        QPainter painter(&image);
        painter.fillRect(QRectF(0, 0, points.width(), 11), QColor(214, 215, 218));
        painter.fillRect(QRectF(8, 20, 30, 52), QColor(208, 209, 212));
        painter.fillRect(QRectF(46, 20, 72, 24), QColor::fromHsv(hue, 160, 240));
        for (int line = 0; line < 3; ++line)
            painter.fillRect(QRectF(46, 52 + 9 * line, 66 - 8 * line, 4), QColor(208, 209, 212));
        painter.end();
        onDone(Thumbnail{image, true});
        return std::make_unique<Request>();
    }
};

} // namespace tembra
