#include "editor/chrome/FloatingShadow.h"

#include "controls/Theme.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <qdrawutil.h>

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

// How far it goes beyond the body, and how much lower it lies: light comes from above.
constexpr int reach = 30;
constexpr int drop = 7;
// It thins out from this far inside its edge, so that no line shows where it begins.
constexpr double softness = 16;

// Distance from a point to a rectangle with round corners around the origin; negative inside.
double distance(double x, double y, double halfSide, double corner) {
    const double dx = std::abs(x) - (halfSide - corner);
    const double dy = std::abs(y) - (halfSide - corner);
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - corner;
}

} // namespace

FloatingShadow::FloatingShadow(QWidget &owner, qreal radius)
    : QWidget(owner.parentWidget()), m_owner(owner), m_radius(radius) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    owner.installEventFilter(this);
    connect(&owner, &QObject::destroyed, this, [this] { delete this; });
    follow();
}

void FloatingShadow::setBody(const QRect &body) {
    m_body = body;
    follow();
}

bool FloatingShadow::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
    case QEvent::ParentChange:
        setParent(m_owner.parentWidget());
        [[fallthrough]];
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::ZOrderChange:
        follow();
        break;
    default:
        break;
    }
    return false;
}

void FloatingShadow::follow() {
    if (!parentWidget() || m_owner.isHidden())
        return hide();
    const QRect body = m_body.isNull() ? m_owner.rect() : m_body;
    setGeometry(
        body.translated(m_owner.pos()).translated(0, drop).marginsAdded({reach, reach, reach, reach}));
    stackUnder(&m_owner);
    show();
}

// The shadow of a small square; its middle is stretched for a larger body.
QPixmap FloatingShadow::render(qreal scale, qreal strength) const {
    const QString key = QStringLiteral("tembra-shadow|%1|%2|%3").arg(m_radius).arg(scale).arg(strength);
    QPixmap patch;
    if (QPixmapCache::find(key, &patch))
        return patch;
    const int edge = static_cast<int>(std::lround((reach + m_radius + softness) * scale));
    const int pixels = 2 * edge + 1;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const double middle = pixels / 2.0;
    const double halfSide = middle / scale - reach;
    for (int row = 0; row < pixels; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < pixels; ++column) {
            const double d =
                distance((column + 0.5 - middle) / scale, (row + 0.5 - middle) / scale, halfSide, m_radius);
            const double nearness = std::clamp((reach - d) / (reach + softness), 0.0, 1.0);
            line[column] =
                qRgba(0, 0, 0, static_cast<int>(std::lround(255 * strength * std::pow(nearness, 2.6))));
        }
    }
    patch = QPixmap::fromImage(image);
    QPixmapCache::insert(key, patch);
    return patch;
}

void FloatingShadow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const qreal scale = devicePixelRatioF();
    const bool isDark = Theme::of(*this).window.lightness() < 128;
    const QPixmap patch = render(scale, isDark ? 0.62 : 0.26);
    const int sourceEdge = patch.width() / 2;
    const int edge = std::min({static_cast<int>(std::lround(sourceEdge / scale)), width() / 2, height() / 2});
    const QMargins target(edge, edge, edge, edge);
    const QMargins source(sourceEdge, sourceEdge, sourceEdge, sourceEdge);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    qDrawBorderPixmap(&painter, rect(), target, patch, patch.rect(), source);
}

} // namespace tembra
