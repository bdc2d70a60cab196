#include "editor/canvas/ImagePyramid.h"

#include <algorithm>

namespace tembra {

namespace {

constexpr int smallestSide = 256;

QImage forDrawing(QImage image) {
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
}

QImage halved(const QImage &image) {
    return image.scaled((image.width() + 1) / 2, (image.height() + 1) / 2, Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

// Halves of narrow images are rounded up more in one direction than in the other.
double scaleOf(const QImage &image, QSize size) {
    return std::min(static_cast<double>(image.width()) / size.width(),
                    static_cast<double>(image.height()) / size.height());
}

} // namespace

ImagePyramid::ImagePyramid(QImage image, QSize size) : m_size(size) {
    if (image.isNull() || size.isEmpty())
        return;
    const double first = scaleOf(image, size);
    m_levels.push_back({forDrawing(std::move(image)), first});
    while (true) {
        const Level &last = m_levels.back();
        if (std::max(last.image.width(), last.image.height()) <= smallestSide ||
            std::min(last.image.width(), last.image.height()) < 2)
            break;
        QImage half = halved(last.image);
        if (half.isNull())
            break;
        const double scale = scaleOf(half, size);
        m_levels.push_back({std::move(half), scale});
    }
}

bool ImagePyramid::isFull() const {
    return !isNull() && m_levels.front().image.size() == m_size;
}

const ImagePyramid::Level &ImagePyramid::level(double scale) const {
    const auto tooSmall = [scale](const Level &level) { return level.scale < scale; };
    const auto end = std::ranges::find_if(m_levels, tooSmall);
    return end == m_levels.begin() ? m_levels.front() : *std::prev(end);
}

} // namespace tembra
