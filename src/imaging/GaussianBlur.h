#pragma once

#include <QImage>
#include <QRect>

namespace tembra {

// The part of the image's Gaussian blur that lies in `area` (pixels of the image, cut to it), as an image of
// the area's size. Beyond its edges the image counts as continued by their pixels, so they do not fade. The
// image is RGB32 or ARGB32_Premultiplied and so is the result. Costs what the area and its surroundings cost,
// and gives what blurring the whole image gives there, to the bit. Any thread.
[[nodiscard]] QImage gaussianBlurred(const QImage &image, QRect area, double sigma);

} // namespace tembra
