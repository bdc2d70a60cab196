#include "editor/model/ArrowShape.h"

#include "editor/model/StrokeOutline.h"

#include <QLineF>
#include <QPainterPathStroker>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tembra {

namespace {

// Lengths in widths of the stroke.
constexpr double dotRadius = 0.15;
constexpr double tailRadius = 0.3;
constexpr double neckRadius = 0.55;
constexpr double headLength = 3.7;
// Parts of the head's length.
constexpr double headHalfWidth = 0.48;
constexpr double notch = 0.14;
constexpr double neckInHead = 0.24;
// Of the arrow's length, at most.
constexpr double headPart = 0.64;

// A quadratic Bézier curve, flattened finely, that knows its way.
class Curve {
public:
    Curve(QPointF start, QPointF control, QPointF end) {
        const QPointF bow = start - 2 * control + end;
        const double needed = std::sqrt(std::hypot(bow.x(), bow.y()) / 4 / 0.01);
        const int pieces = std::clamp(static_cast<int>(std::ceil(needed)), 32, 400);
        for (int piece = 0; piece <= pieces; ++piece) {
            const double t = static_cast<double>(piece) / pieces;
            const QPointF point = start * ((1 - t) * (1 - t)) + control * (2 * t * (1 - t)) + end * (t * t);
            m_way.push_back(m_points.empty() ? 0 : length() + QLineF(m_points.back(), point).length());
            m_points.push_back(point);
        }
    }

    [[nodiscard]] double length() const { return m_way.back(); }
    [[nodiscard]] QPointF at(double way) const {
        const auto next = std::ranges::lower_bound(m_way, way);
        if (next == m_way.begin() || next == m_way.end())
            return next == m_way.end() ? m_points.back() : m_points.front();
        const auto index = next - m_way.begin();
        const double part = (way - m_way[index - 1]) / (m_way[index] - m_way[index - 1]);
        return m_points[index - 1] + (m_points[index] - m_points[index - 1]) * part;
    }
    // The stroke from the start to a place on the way, its radius growing evenly.
    [[nodiscard]] std::vector<StrokePoint> stroke(double toWay, double fromRadius, double toRadius) const {
        std::vector<StrokePoint> result;
        for (std::size_t index = 0; index < m_points.size() && m_way[index] < toWay; ++index)
            result.push_back({m_points[index], fromRadius + (toRadius - fromRadius) * m_way[index] / toWay});
        result.push_back({at(toWay), toRadius});
        return result;
    }

private:
    std::vector<QPointF> m_points;
    std::vector<double> m_way;
};

// A polygon whose corners are rounded, each beginning so far from it.
void addRounded(QPainterPath &path, const std::array<QPointF, 4> &corners,
                const std::array<double, 4> &rounding) {
    const auto towards = [](QPointF from, QPointF to, double distance) {
        QLineF line(from, to);
        line.setLength(std::min(distance, line.length() / 2));
        return line.p2();
    };
    for (std::size_t at = 0; at < corners.size(); ++at) {
        const QPointF before = corners[(at + corners.size() - 1) % corners.size()];
        const QPointF after = corners[(at + 1) % corners.size()];
        const QPointF arrival = towards(corners[at], before, rounding[at]);
        if (at == 0)
            path.moveTo(arrival);
        else
            path.lineTo(arrival);
        path.quadTo(corners[at], towards(corners[at], after, rounding[at]));
    }
    path.closeSubpath();
}

QPainterPath head(QPointF back, QPointF tip, double length) {
    QPainterPath path;
    QLineF axis(back, tip);
    if (axis.isNull())
        return path;
    axis.setLength(1);
    const QPointF along(axis.dx(), axis.dy());
    const QPointF left(along.y(), -along.x());
    const QPointF barbs = tip - along * length;
    const double half = length * headHalfWidth;
    const double round = length * 0.09;
    addRounded(path, {barbs + left * half, tip, barbs - left * half, barbs + along * (length * notch)},
               {round, round * 0.8, round, 0});
    return path;
}

QPainterPath edgeAround(const QPainterPath &path, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(2 * width);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(path);
}

} // namespace

QPointF ArrowShape::middle() const {
    return bend.value_or((start + end) / 2);
}

QPainterPath ArrowShape::outline(double growth) const {
    if (!(width > 0))
        return {};
    // The control point of the quadratic curve that is at the middle when half its parameter is through.
    const Curve curve(start, 2 * middle() - (start + end) / 2, end);
    const double headSize = std::min(headLength * width + 2, curve.length() * headPart);
    const double neck = std::min(width * neckRadius, headSize * headHalfWidth * 0.42);
    const double tail = std::clamp(neck * tailRadius / neckRadius, width * dotRadius, width * tailRadius);
    const double shaft = curve.length() - headSize * (1 - neckInHead);
    QPainterPath path = strokeOutline(curve.stroke(shaft, tail + growth, std::max(neck, tail) + growth));
    path.setFillRule(Qt::WindingFill);
    const QPainterPath tip = head(curve.at(curve.length() - headSize * (1 - notch)), end, headSize);
    path.addPath(tip);
    if (growth > 0)
        path.addPath(edgeAround(tip, growth));
    return path;
}

} // namespace tembra
