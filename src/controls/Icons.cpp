#include "controls/Icons.h"

#include "controls/DevicePixels.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

namespace tembra {

namespace {

QString fileName(Icon icon) {
    switch (icon) {
    case Icon::arrow:
        return QStringLiteral("arrow");
    case Icon::blur:
        return QStringLiteral("blur");
    case Icon::close:
        return QStringLiteral("close");
    case Icon::crop:
        return QStringLiteral("crop");
    case Icon::cursor:
        return QStringLiteral("cursor");
    case Icon::document:
        return QStringLiteral("document");
    case Icon::dragOut:
        return QStringLiteral("drag-out");
    case Icon::ellipse:
        return QStringLiteral("ellipse");
    case Icon::fill:
        return QStringLiteral("fill");
    case Icon::film:
        return QStringLiteral("film");
    case Icon::folder:
        return QStringLiteral("folder");
    case Icon::gear:
        return QStringLiteral("gear");
    case Icon::info:
        return QStringLiteral("info");
    case Icon::line:
        return QStringLiteral("line");
    case Icon::more:
        return QStringLiteral("more");
    case Icon::number:
        return QStringLiteral("number");
    case Icon::pencil:
        return QStringLiteral("pencil");
    case Icon::photo:
        return QStringLiteral("photo");
    case Icon::pin:
        return QStringLiteral("pin");
    case Icon::rectangle:
        return QStringLiteral("rectangle");
    case Icon::statusBar:
        return QStringLiteral("status-bar");
    case Icon::text:
        return QStringLiteral("text");
    case Icon::textBackground:
        return QStringLiteral("text-background");
    case Icon::textViewfinder:
        return QStringLiteral("text-viewfinder");
    case Icon::warning:
        return QStringLiteral("warning");
    }
    Q_UNREACHABLE();
}

QPixmap render(Icon icon, int pixels, const QColor &color) {
    QSvgRenderer renderer(QStringLiteral(":/tembra/icons/%1.svg").arg(fileName(icon)));
    Q_ASSERT(renderer.isValid());
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

} // namespace

QPixmap iconPixmap(Icon icon, qreal side, qreal scale, const QColor &color) {
    const int pixels = std::max(1, static_cast<int>(std::lround(side * scale)));
    const QString key = QStringLiteral("tembra-icon|%1|%2|%3")
                            .arg(fileName(icon), QString::number(pixels), color.name(QColor::HexArgb));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = render(icon, pixels, color);
        QPixmapCache::insert(key, pixmap);
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

void drawIcon(QPainter &painter, Icon icon, const QRectF &rectangle, qreal side, const QColor &color) {
    const qreal scale = painter.device()->devicePixelRatioF();
    const QPixmap pixmap = iconPixmap(icon, side, scale, color);
    const QPointF corner = rectangle.center() - QPointF(side, side) / 2;
    const QRectF place(corner, pixmap.deviceIndependentSize());
    painter.drawPixmap(onDevicePixels(painter, place).topLeft(), pixmap);
}

} // namespace tembra
