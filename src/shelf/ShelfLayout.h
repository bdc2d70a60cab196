#pragma once

#include <QMargins>
#include <QSizeF>

namespace tembra {

// Measures that the shelf's views share, in points.
struct ShelfLayout {
    struct Grid {
        static constexpr int itemWidth = 104;
        static constexpr int itemHeight = 112;
        static constexpr int itemHeightWithoutName = 72;
        static constexpr int interItemSpacing = 8;
        static constexpr int lineSpacing = 8;
        static constexpr QMargins sectionInset{24, 20, 32, 8};

        [[nodiscard]] static constexpr int heightOfItem(bool showFileNames) {
            return showFileNames ? itemHeight : itemHeightWithoutName;
        }
        // How many items fit side by side; at least one. The width must be finite.
        [[nodiscard]] static int columns(double width);
        // The size of a run of items: as wide as the viewport and at least as tall.
        [[nodiscard]] static QSizeF documentSize(int count, QSizeF viewport, bool showFileNames);
    };
};

} // namespace tembra
