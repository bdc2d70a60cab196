#pragma once

namespace tembra {

// How recognized text is put together.
enum class OCRTextLayout {
    // A line for each line of the image.
    lines,
    // A line for each paragraph, an empty one where the image has a gap.
    paragraphs,
    oneLine,
};

} // namespace tembra
