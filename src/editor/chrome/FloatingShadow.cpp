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

// Distance from a point to a rectangle with round corners around the origin; negative inside.
double distance(double x, double y, double halfSide, double corner) {
    const double dx = std::abs(x) - (halfSide - corner);
    const double dy = std::abs(y) - (halfSide - corner);
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    return outside + std::min(std::max(dx, dy), 0.0) - corner;
}

} // namespace

FloatingShadow::FloatingShadow(QWidget &owner, int radius, int reach)
    : QWidget(owner.parentWidget()), m_owner(owner), m_radius(radius), m_reach(reach) {
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
    // Lower than the owner: light comes from above.
    const QRect below = body.translated(m_owner.pos()).translated(0, m_reach / 4);
    setGeometry(below.marginsAdded({m_reach, m_reach, m_reach, m_reach}));
    stackUnder(&m_owner);
    show();
}

// The shadow of a small square; its middle is stretched for a larger body.
QPixmap FloatingShadow::render(qreal scale, qreal strength) const {
    const QString key =
        QStringLiteral("tembra-shadow|%1|%2|%3|%4").arg(m_radius).arg(m_reach).arg(scale).arg(strength);
    QPixmap patch;
    if (QPixmapCache::find(key, &patch))
        return patch;
    // It thins out from this far inside its edge, so that no line shows where it begins.
    const double softness = m_reach / 2.0;
    const int edge = static_cast<int>(std::lround((m_reach + m_radius + softness) * scale));
    const int pixels = 2 * edge + 1;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const double middle = pixels / 2.0;
    const double halfSide = middle / scale - m_reach;
    for (int row = 0; row < pixels; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < pixels; ++column) {
            const double d =
                distance((column + 0.5 - middle) / scale, (row + 0.5 - middle) / scale, halfSide, m_radius);
            const double nearness = std::clamp((m_reach - d) / (m_reach + softness), 0.0, 1.0);
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
