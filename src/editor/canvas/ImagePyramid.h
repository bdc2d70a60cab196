#pragma once

#include <QImage>
#include <QSize>

#include <vector>

namespace tembra {

// An image with its halves, quarters and so on, so that it is drawn small as quickly as large and does not
// shimmer. A value; any thread. The levels share the aspect of the image up to the rounding of their sizes.
class ImagePyramid {
public:
    struct Level {
        // RGB32 or ARGB32_Premultiplied.
        QImage image;
        // Its pixels for a pixel of the image.
        double scale = 1;
    };

    ImagePyramid() = default;
    // `image` is what there is of an image of `size`: all its pixels, or a reduced preview.
    ImagePyramid(QImage image, QSize size);

    [[nodiscard]] bool isNull() const { return m_levels.empty(); }
    [[nodiscard]] QSize size() const { return m_size; }
    // Every pixel of the image is there.
    [[nodiscard]] bool isFull() const;
    // The smallest level that has at least `scale` pixels for a pixel of the image, else the largest.
    [[nodiscard]] const Level &level(double scale) const;

private:
    QSize m_size;
    // The largest first.
    std::vector<Level> m_levels;
};

} // namespace tembra
