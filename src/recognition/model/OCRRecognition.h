#pragma once

#include "recognition/model/OCRText.h"

#include <QImage>

namespace tembra {

// What became of an image. A value.
struct OCRRecognition {
    // In pixels of the image.
    OCRText text;
    // Of the image, upright.
    QSize size;
    // The image, no side longer than `longestPictureSide`.
    QImage picture;

    static constexpr int longestPictureSide = 480;
};

} // namespace tembra
