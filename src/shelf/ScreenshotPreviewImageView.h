#pragma once

#include <QImage>
#include <QWidget>

namespace tembra {

// A picture clipped to a rounded rectangle with a hairline border, which keeps dark pictures apart from the
// dark shelf.
class ScreenshotPreviewImageView final : public QWidget {
    Q_OBJECT

public:
    static constexpr qreal cornerRadius = 4;

    explicit ScreenshotPreviewImageView(QWidget *parent = nullptr);

    void setImage(const QImage &image);

    // The largest rectangle of the image's shape in the middle of the given one.
    [[nodiscard]] static QRectF fitted(const QImage &image, const QRectF &rectangle);
    // Draws the image over the whole place, moved to the nearest device pixels; the border is one of them
    // wide.
    static void draw(QPainter &painter, const QRectF &place, const QImage &image,
                     qreal radius = cornerRadius);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
};

} // namespace tembra
