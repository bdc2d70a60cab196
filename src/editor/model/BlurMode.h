#pragma once

namespace tembra {

// What the blur tool works on: rectangles that are drawn, or the words of the image.
enum class BlurMode { area, text };

} // namespace tembra
