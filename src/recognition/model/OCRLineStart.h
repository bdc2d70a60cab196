#pragma once

namespace tembra {

// What a line of text begins.
enum class OCRLineStart {
    // Nothing: it goes on with the sentence of the line before.
    continuation,
    paragraph,
    // A paragraph that stands apart from what is before it.
    section,
};

} // namespace tembra
