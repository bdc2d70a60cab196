#pragma once

#include "recognition/model/OCRText.h"

#include <QByteArray>
#include <QString>

namespace tembra {

// What `tembra ocr` prints of an image's text. Boxes are in pixels of the image, origin top left, rounded to
// whole ones.
struct OCRReport {
    OCRText text;
    OCRTextLayout layout = OCRTextLayout::lines;
    // Each word with its box.
    bool words = false;

    // Keys are only ever added.
    [[nodiscard]] QByteArray json() const;
    // The text; with words a line for each: x, y, width, height and the word, divided by tabs.
    [[nodiscard]] QString plainText() const;
};

} // namespace tembra
