#include "editor/canvas/ImagePart.h"

namespace tembra {

namespace {

// From here on the pixels of the image are to be seen as such.
constexpr double pixelsShown = 3;

} // namespace

ImagePart ImagePart::of(const ImagePyramid &pyramid, const CanvasViewport &viewport) {
    const ImagePyramid::Level &level = pyramid.level(viewport.scale());
    const double scaleX = static_cast<double>(level.image.width()) / pyramid.size().width();
    const double scaleY = static_cast<double>(level.image.height()) / pyramid.size().height();
    const QRectF seen = viewport.toImage(QRectF(QPointF(), viewport.viewSize())) & viewport.content();
    const QRectF inLevel(seen.x() * scaleX, seen.y() * scaleY, seen.width() * scaleX, seen.height() * scaleY);
    ImagePart part{.level = &level};
    part.pixels = inLevel.toAlignedRect() & level.image.rect();
    part.target = viewport.toView(QRectF(part.pixels.x() / scaleX, part.pixels.y() / scaleY,
                                         part.pixels.width() / scaleX, part.pixels.height() / scaleY));
    return part;
}

void ImagePart::draw(QPainter &painter, const QImage &image, const QRectF &source,
                     const CanvasViewport &viewport) const {
    if (pixels.isEmpty())
        return;
    painter.save();
    painter.setClipRect(viewport.toView(viewport.content()), Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, viewport.scale() < pixelsShown);
    painter.drawImage(target, image, source);
    painter.restore();
}

} // namespace tembra
