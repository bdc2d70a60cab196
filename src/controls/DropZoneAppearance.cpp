#include "controls/DropZoneAppearance.h"

#include "controls/Palette.h"
#include "controls/Typography.h"

#include <QPainter>

namespace tembra {

namespace {

constexpr qreal cornerRadius = 12;
constexpr qreal overlayOpacity = 0.84;
constexpr int fillLevel = 18;    // white 0.07
constexpr int strokeLevel = 166; // white 0.65

} // namespace

void DropZoneAppearance::draw(QPainter &painter, const QRectF &rectangle, bool highlighted, bool overlay,
                              const QString &message) {
    const QRectF outline = rectangle.adjusted(0.5, 0.5, -0.5, -0.5);
    QColor fill(fillLevel, fillLevel, fillLevel);
    fill.setAlphaF(overlay ? overlayOpacity : 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rectangle, cornerRadius, cornerRadius);
    QPen pen(highlighted ? palette::accent : QColor(strokeLevel, strokeLevel, strokeLevel), 1);
    pen.setDashPattern({4, 3});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(highlighted ? palette::selection : QColor(Qt::transparent));
    painter.drawRoundedRect(outline, cornerRadius, cornerRadius);
    painter.setFont(typography::font(typography::bodySize));
    painter.setPen(palette::secondaryText);
    painter.drawText(rectangle, Qt::AlignCenter | Qt::TextWordWrap, message);
    painter.restore();
}

} // namespace tembra
