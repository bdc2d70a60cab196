#include "shelf/ShelfLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tembra {

int ShelfLayout::Grid::columns(double width) {
    if (!std::isfinite(width))
        qFatal("ShelfLayout::Grid::columns: the width is not finite");
    const double room = std::max(width - sectionInset.left() - sectionInset.right(), 0.0) + interItemSpacing;
    const double fitting =
        std::min(room / (itemWidth + interItemSpacing), static_cast<double>(std::numeric_limits<int>::max()));
    return std::max(1, static_cast<int>(fitting));
}

QSizeF ShelfLayout::Grid::documentSize(int count, QSizeF viewport, bool showFileNames) {
    const int perRow = columns(viewport.width());
    const qint64 rows = (qint64{std::max(count, 0)} + perRow - 1) / perRow;
    const qint64 spacing = std::max(rows - 1, qint64{0}) * lineSpacing;
    const qint64 height =
        sectionInset.top() + rows * heightOfItem(showFileNames) + spacing + sectionInset.bottom();
    return {viewport.width(), std::max(static_cast<double>(height), viewport.height())};
}

} // namespace tembra
