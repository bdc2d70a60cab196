#pragma once

#include <QFont>

// The type of the program: Inter where it is installed, else the desktop's own font. Sizes are in points of
// the screen, that is in device-independent pixels. Main thread.
namespace tembra::typography {

inline constexpr int captionSize = 11;
inline constexpr int itemSize = 12;
inline constexpr int bodySize = 13;
inline constexpr int headlineSize = 14;
inline constexpr int titleSize = 15;
// The heading of a window or of one of its pages, and the one sentence of a page that welcomes.
inline constexpr int windowTitleSize = 18;
inline constexpr int displaySize = 24;

[[nodiscard]] QFont font(int size, QFont::Weight weight = QFont::Normal);

} // namespace tembra::typography
