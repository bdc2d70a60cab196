#include "shelf/ScreenshotPreviewImageView.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The picture as a tile shows it, whose corner lies at (3, 3) points.
QImage drawn(const QImage &picture, double scale) {
    QImage canvas((QSizeF(112, 80) * scale).toSize(), QImage::Format_RGB32);
    canvas.setDevicePixelRatio(scale);
    canvas.fill(Qt::red);
    QPainter painter(&canvas);
    painter.translate(3, 3);
    ScreenshotPreviewImageView::draw(
        painter, ScreenshotPreviewImageView::fitted(picture, QRectF(20, 4, 64, 64)), picture);
    return canvas;
}

} // namespace

// Also when an odd height puts the middle of the picture between two pixels.
TEST(ScreenshotPreviewImageView, showsAPictureMadeForTheScreenPixelByPixel) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const int height : {34, 35, 36}) {
            QImage stripes((QSizeF(64, height) * scale).toSize(), QImage::Format_RGB32);
            stripes.setDevicePixelRatio(scale);
            stripes.fill(Qt::black);
            for (int y = 0; y < stripes.height(); y += 2)
                std::fill_n(reinterpret_cast<QRgb *>(stripes.scanLine(y)), stripes.width(),
                            qRgb(255, 255, 255));
            const QImage canvas = drawn(stripes, scale);
            std::vector<int> column;
            for (int y = 0; y < canvas.height(); ++y) {
                const QColor color = canvas.pixelColor(canvas.width() / 2, y);
                if (color != QColor(Qt::red))
                    column.push_back(color.green());
            }
            ASSERT_EQ(column.size(), static_cast<std::size_t>(stripes.height())) << scale << ' ' << height;
            for (std::size_t y = 1; y + 1 < column.size(); ++y) // between the border's lines
                ASSERT_EQ(column[y], y % 2 ? 0 : 255) << scale << ' ' << height;
        }
    }
}

TEST(ScreenshotPreviewImageView, showsTheWholePictureWhateverScaleItWasMadeFor) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        for (const double made : {1.0, 1.5, 2.0, 3.0}) {
            QImage halves((QSizeF(64, 32) * made).toSize(), QImage::Format_RGB32);
            halves.setDevicePixelRatio(made);
            halves.fill(Qt::green);
            QPainter(&halves).fillRect(QRectF(32, 0, 32, 32), Qt::blue);
            const QImage canvas = drawn(halves, scale);
            const auto at = [&](double x, double y) {
                return canvas.pixelColor((QPointF(x + 3, y + 3) * scale).toPoint());
            };
            EXPECT_EQ(at(26, 24), QColor(Qt::green)) << scale << ' ' << made;
            EXPECT_EQ(at(49, 48), QColor(Qt::green)) << scale << ' ' << made;
            EXPECT_EQ(at(55, 24), QColor(Qt::blue)) << scale << ' ' << made;
            EXPECT_EQ(at(78, 48), QColor(Qt::blue)) << scale << ' ' << made;
            EXPECT_EQ(at(52, 15), QColor(Qt::red)) << scale << ' ' << made;
        }
    }
}
