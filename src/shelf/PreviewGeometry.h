#pragma once

#include <QRectF>
#include <QSizeF>

#include <vector>

namespace tembra {

// Where the preview's window and its pictures lie. Screen points, respectively the window's own; sizes of
// pictures are in points, that is pixels divided by the display's scale.
struct PreviewGeometry {
    static constexpr double margin = 14;
    static constexpr double footer = 40;
    static constexpr double spacing = 12;

    // The window for pictures of these sizes side by side: as large as they are where the place allows it, in
    // the middle of it, and never too small for the footer.
    [[nodiscard]] static QRectF window(const std::vector<QSizeF> &pictures, const QRectF &available);
    // The pictures' places in a window of that size, of one height and in one row.
    [[nodiscard]] static std::vector<QRectF> row(const std::vector<QSizeF> &pictures, const QSizeF &window);
};

} // namespace tembra
