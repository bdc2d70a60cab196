#pragma once

#include "platform/TextRecognizer.h"
#include "recognition/model/OCRLineStart.h"
#include "recognition/model/OCRTextLayout.h"

#include <vector>

namespace tembra {

// The text of an image, and where it stood. A value. Image space: pixels, origin top left.
struct OCRText {
    std::vector<TextRecognizer::Line> lines;

    // Without a line feed at the end; laid out as `lines` there is exactly one between two lines.
    [[nodiscard]] QString string(OCRTextLayout layout = OCRTextLayout::lines) const;
    // One for each line, told from how they stand to each other.
    [[nodiscard]] std::vector<OCRLineStart> lineStarts() const;
    [[nodiscard]] int wordCount() const;

    bool operator==(const OCRText &) const = default;
};

} // namespace tembra
