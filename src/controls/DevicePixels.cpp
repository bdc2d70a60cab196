#include "controls/DevicePixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tembra {

QRectF onDevicePixels(const QPainter &painter, const QRectF &rectangle) {
    const QTransform &toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale)
        return rectangle;
    const QRectF device = toDevice.mapRect(rectangle);
    const QPointF corner(std::round(device.x()), std::round(device.y()));
    const QSizeF size(std::max(1.0, std::round(device.width())), std::max(1.0, std::round(device.height())));
    return toDevice.inverted().mapRect(QRectF(corner, size));
}

} // namespace tembra
