#include "editor/model/StrokeOutline.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tembra {

namespace {

// How far, in pixels of the image, a chord may lie from its arc: nothing that a magnified view shows.
double flatness(double radius) {
    return std::max(0.01, radius / 5'000);
}

// Gentler turns than this are mitred: the difference to a round join cannot be seen.
constexpr double gentleTurn = 0.3;

QPointF turnedBy(QPointF vector, double angle) {
    return {vector.x() * std::cos(angle) - vector.y() * std::sin(angle),
            vector.x() * std::sin(angle) + vector.y() * std::cos(angle)};
}

QPointF leftOf(QPointF direction) {
    return {direction.y(), -direction.x()};
}

class Outliner {
public:
    explicit Outliner(std::span<const StrokePoint> points) {
        for (const StrokePoint &point : points) {
            if (m_points.empty() || QLineF(m_points.back().position, point.position).length() > 1e-3)
                m_points.push_back(point);
        }
        for (std::size_t next = 1; next < m_points.size(); ++next) {
            const QPointF way = m_points[next].position - m_points[next - 1].position;
            m_lengths.push_back(std::hypot(way.x(), way.y()));
            m_directions.push_back(way / m_lengths.back());
        }
    }

    QPainterPath outline() {
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        if (m_points.empty())
            return path;
        if (m_points.size() == 1) {
            path.addEllipse(m_points[0].position, m_points[0].radius, m_points[0].radius);
            return path;
        }
        m_outline.reserve(static_cast<qsizetype>(m_points.size()) * 2 + 64);
        const std::size_t last = m_points.size() - 1;
        for (std::size_t at = 1; at < last; ++at)
            addJoin(at, m_directions[at - 1], m_directions[at]);
        addArc(m_points[last], leftOf(m_directions.back()), std::numbers::pi);
        for (std::size_t at = last - 1; at > 0; --at)
            addJoin(at, -m_directions[at], -m_directions[at - 1]);
        addArc(m_points[0], leftOf(-m_directions.front()), std::numbers::pi);
        path.addPolygon(m_outline);
        path.closeSubpath();
        return path;
    }

private:
    // The left side of the stroke where it goes from one direction into another.
    void addJoin(std::size_t at, QPointF from, QPointF to) {
        const StrokePoint &point = m_points[at];
        const double turn = std::atan2(from.x() * to.y() - from.y() * to.x(), QPointF::dotProduct(from, to));
        const double cut = point.radius * std::tan(std::abs(turn) / 2);
        const bool isGentle =
            std::abs(turn) < gentleTurn && cut < std::min(m_lengths[at - 1], m_lengths[at]) / 2;
        if (isGentle) {
            const QPointF normal = leftOf(turnedBy(from, turn / 2));
            m_outline += point.position + normal * (point.radius / std::cos(turn / 2));
            return;
        }
        if (turn > 0) {
            addArc(point, leftOf(from), turn);
            return;
        }
        // By way of the middle, so that no part of the stroke is wound backwards.
        m_outline += point.position + leftOf(from) * point.radius;
        m_outline += point.position;
        m_outline += point.position + leftOf(to) * point.radius;
    }

    void addArc(const StrokePoint &point, QPointF normal, double angle) {
        const double chord =
            2 * std::acos(std::max(0.0, 1 - flatness(point.radius) / std::max(point.radius, 0.01)));
        const int pieces = std::clamp(static_cast<int>(std::ceil(angle / chord)), 1, 180);
        for (int piece = 0; piece <= pieces; ++piece)
            m_outline += point.position + turnedBy(normal, angle * piece / pieces) * point.radius;
    }

    std::vector<StrokePoint> m_points;
    std::vector<double> m_lengths;
    std::vector<QPointF> m_directions;
    QPolygonF m_outline;
};

} // namespace

QPainterPath strokeOutline(std::span<const StrokePoint> points) {
    return Outliner(points).outline();
}

} // namespace tembra
