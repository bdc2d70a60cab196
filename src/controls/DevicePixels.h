#pragma once

#include <QRectF>

class QPainter;

namespace tembra {

// The nearest rectangle whose edges lie between device pixels, so that nothing drawn into it is blurred; the
// same one where the painter turns what it draws.
[[nodiscard]] QRectF onDevicePixels(const QPainter &painter, const QRectF &rectangle);

} // namespace tembra
