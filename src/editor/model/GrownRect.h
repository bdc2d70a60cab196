#pragma once

#include <QRectF>

namespace tembra {

// With so much more on every side.
[[nodiscard]] inline QRectF grown(const QRectF &rect, double margin) {
    return rect.adjusted(-margin, -margin, margin, margin);
}

} // namespace tembra
