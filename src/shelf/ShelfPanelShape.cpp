#include "shelf/ShelfPanelShape.h"

#include <algorithm>

namespace tembra {

QPainterPath ShelfPanelShape::path(const QRectF &body) {
    const double outer = std::min(topRadius, body.height() / 2);
    const double inner = std::min({bottomRadius, body.height() - outer, body.width() / 2});
    QPainterPath path(QPointF(body.left() - outer, body.top()));
    path.arcTo(QRectF(body.left() - 2 * outer, body.top(), 2 * outer, 2 * outer), 90, -90);
    path.lineTo(body.left(), body.bottom() - inner);
    path.arcTo(QRectF(body.left(), body.bottom() - 2 * inner, 2 * inner, 2 * inner), 180, 90);
    path.lineTo(body.right() - inner, body.bottom());
    path.arcTo(QRectF(body.right() - 2 * inner, body.bottom() - 2 * inner, 2 * inner, 2 * inner), 270, 90);
    path.lineTo(body.right(), body.top() + outer);
    path.arcTo(QRectF(body.right(), body.top(), 2 * outer, 2 * outer), 180, -90);
    path.closeSubpath();
    return path;
}

} // namespace tembra
