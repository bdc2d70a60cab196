#include "shelf/ScreenshotPreviewImageView.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace tembra;

// A picture that is made for its place is shown pixel by pixel on every scale, also when its odd height puts
// its middle between two pixels.
TEST(ScreenshotPreviewImageView, neverBlursAPictureThatHasThePlacesPixels) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const int height : {34, 35, 36}) {
            QImage stripes(QSize(static_cast<int>(64 * scale), static_cast<int>(height * scale)),
                           QImage::Format_RGB32);
            stripes.setDevicePixelRatio(scale);
            for (int y = 0; y < stripes.height(); ++y) {
                for (int x = 0; x < stripes.width(); ++x)
                    stripes.setPixelColor(x, y, y % 2 ? Qt::white : Qt::black);
            }
            QImage canvas((QSizeF(104, 112) * scale).toSize(), QImage::Format_RGB32);
            canvas.setDevicePixelRatio(scale);
            canvas.fill(Qt::red);
            QPainter painter(&canvas);
            painter.translate(3, 3);
            ScreenshotPreviewImageView::draw(
                painter, ScreenshotPreviewImageView::fitted(stripes, {20, 4, 64, 64}), stripes);
            painter.end();
            const int column = canvas.width() / 2;
            int pure = 0;
            for (int y = 0; y < canvas.height(); ++y) {
                const QColor color = canvas.pixelColor(column, y);
                pure += color == QColor(Qt::white) || color == QColor(Qt::black) ? 1 : 0;
            }
            // The first and the last line lie under the border.
            EXPECT_GE(pure, stripes.height() - 2) << "scale " << scale << ", height " << height;
        }
    }
}
