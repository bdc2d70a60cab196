#include "shelf/ShelfShadow.h"

#include "shelf/ShelfPanelShape.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr double strength = 0.55;
// The shadow thins out from this far inside its edge, so that no line shows where it begins.
constexpr double softness = 28;
constexpr double corner = ShelfPanelShape::bottomRadius;
// The patch: the reach on each side, a corner, and one point in the middle that is stretched.
constexpr int side = 2 * (ShelfShadow::reach + static_cast<int>(corner)) + 1;

// Distance from a point to a rectangle with round corners around the origin; negative inside.
double distance(double x, double y, double halfSide) {
    const double dx = std::abs(x) - (halfSide - corner);
    const double dy = std::abs(y) - (halfSide - corner);
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - corner;
}

} // namespace

void ShelfShadow::render(qreal scale) {
    const int pixels = static_cast<int>(std::lround(side * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const double middle = side / 2.0;
    for (int row = 0; row < pixels; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < pixels; ++column) {
            const double d =
                distance((column + 0.5) / scale - middle, (row + 0.5) / scale - middle, corner + 0.5);
            const double nearness = std::clamp((reach - d) / (reach + softness), 0.0, 1.0);
            line[column] =
                qRgba(0, 0, 0, static_cast<int>(std::lround(255 * strength * std::pow(nearness, 2.6))));
        }
    }
    image.setDevicePixelRatio(scale);
    m_patch = QPixmap::fromImage(image);
}

void ShelfShadow::draw(QPainter &painter, const QRectF &body) {
    const qreal scale = painter.device()->devicePixelRatioF();
    if (m_patch.isNull() || !qFuzzyCompare(m_patch.devicePixelRatio(), scale))
        render(scale);
    const double edge = reach + corner;
    const QRectF target(body.left() - reach, body.top(), body.width() + 2 * reach,
                        body.height() + reach + drop);
    const double width = target.width() - 2 * edge;
    const double bottom = target.bottom() - edge;
    const auto piece = [&](const QRectF &to, const QRectF &from) {
        const QRectF source(from.topLeft() * scale, from.size() * scale);
        painter.drawPixmap(to, m_patch, source);
    };
    const double height = std::max(0.0, bottom - target.top());
    piece({target.left(), target.top(), edge, height}, {0, edge, edge, 1});
    piece({target.right() - edge, target.top(), edge, height}, {edge + 1, edge, edge, 1});
    piece({target.left(), bottom, edge, edge}, {0, edge + 1, edge, edge});
    piece({target.left() + edge, bottom, width, edge}, {edge, edge + 1, 1, edge});
    piece({target.right() - edge, bottom, edge, edge}, {edge + 1, edge + 1, edge, edge});
}

} // namespace tembra
