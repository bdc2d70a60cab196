#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace tembra {

// The image that a text was read from, small.
class OCRPictureView final : public QWidget {
    Q_OBJECT

public:
    explicit OCRPictureView(QWidget *parent);

    void setPicture(const QImage &picture);
    // Within the room, in the picture's shape and never larger than it is; empty without one.
    [[nodiscard]] QSize sizeWithin(const QSize &room) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
    // The picture in the device pixels that it was last drawn at.
    QPixmap m_scaled;
};

} // namespace tembra
