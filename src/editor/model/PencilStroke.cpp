#include "editor/model/PencilStroke.h"

#include "editor/model/StrokeOutline.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tembra {

namespace {

using Points = std::vector<QPointF>;

// More than a hand draws in one stroke; beyond it samples are left out. The wider it is the longer each takes
// to paint, and the less is seen of it.
std::size_t mostSamples(double width) {
    return static_cast<std::size_t>(std::clamp(150'000 / width, 150.0, 100'000.0));
}
// In pixels: where a stroke that goes on is cut off, for painting takes time with its length.
constexpr double longest = 200'000;

double length(QPointF vector) {
    return std::hypot(vector.x(), vector.y());
}

Points spaced(std::span<const EditorPoint> samples, double spacing) {
    Points result{samples.front().toPointF()};
    double way = 0;
    for (const EditorPoint &sample : samples) {
        const QPointF point = sample.toPointF();
        const double step = length(point - result.back());
        if (way + step > longest) {
            result.push_back(result.back() + (point - result.back()) * ((longest - way) / step));
            return result;
        }
        if (step >= spacing) {
            way += step;
            result.push_back(point);
        }
    }
    const QPointF last = samples.back().toPointF();
    if (result.size() > 1)
        result.back() = last;
    else if (result.back() != last)
        result.push_back(last);
    return result;
}

Points thinned(std::span<const EditorPoint> samples, double width) {
    double spacing = std::clamp(width / 2, 2.0, 3.0);
    Points result = spaced(samples, spacing);
    // The way has an end, so wider steps do away with enough of them.
    for (; result.size() > mostSamples(width); result = spaced(samples, spacing))
        spacing *= 2;
    return result;
}

void smooth(Points &points, double factor) {
    QPointF before = points.front();
    for (std::size_t at = 1; at + 1 < points.size(); ++at) {
        const QPointF here = points[at];
        points[at] += ((before + points[at + 1]) / 2 - here) * factor;
        before = here;
    }
}

// Takes away the steps that the pointer's whole pixels leave in a stroke, without making its bows smaller
// (Taubin, "Curve and surface smoothing without shrinkage"), and no more: a place is hardly moved farther
// than the steps are high, so that what is drawn by intention stays.
void removeSteps(Points &points) {
    constexpr double farthest = 1.5;
    constexpr int passes = 6;
    if (points.size() < 3)
        return;
    const Points samples = points;
    for (int pass = 0; pass < passes; ++pass) {
        smooth(points, 0.63);
        smooth(points, -0.67);
    }
    for (std::size_t at = 0; at < points.size(); ++at) {
        const QPointF change = points[at] - samples[at];
        if (const double distance = length(change); distance > farthest)
            points[at] = samples[at] + change * (farthest / distance);
    }
}

// The centripetal Catmull-Rom tangent at a place (Yuksel, Schaefer, Keyser, "Parameterization and
// applications of Catmull-Rom curves"), for a knot distance of one towards the next place.
QPointF tangent(QPointF before, QPointF here, QPointF after, double knotBefore, double knotAfter) {
    return (here - before) / knotBefore - (after - before) / (knotBefore + knotAfter) +
           (after - here) / knotAfter;
}

// The curve through the points, in pieces so short that their corners cannot be seen.
Points curve(const Points &points, double width) {
    const double bowOfPiece = std::max(0.08, width / 500);
    Points result{points.front()};
    const auto knot = [](QPointF from, QPointF to) { return std::sqrt(std::max(length(to - from), 1e-6)); };
    for (std::size_t at = 0; at + 1 < points.size(); ++at) {
        const QPointF here = points[at];
        const QPointF next = points[at + 1];
        const QPointF before = at > 0 ? points[at - 1] : 2 * here - next;
        const QPointF after = at + 2 < points.size() ? points[at + 2] : 2 * next - here;
        const double step = knot(here, next);
        const QPointF control1 = here + tangent(before, here, next, knot(before, here), step) * (step / 3);
        const QPointF control2 = next - tangent(here, next, after, step, knot(next, after)) * (step / 3);
        const double bow = length(here - 2 * control1 + control2) + length(control1 - 2 * control2 + next);
        const int pieces = std::clamp(static_cast<int>(std::ceil(std::sqrt(bow / bowOfPiece))), 1, 48);
        for (int piece = 1; piece <= pieces; ++piece) {
            const double t = static_cast<double>(piece) / pieces;
            const double s = 1 - t;
            result.push_back(s * s * s * here + 3 * s * s * t * control1 + 3 * s * t * t * control2 +
                             t * t * t * next);
        }
    }
    return result;
}

double eased(double part) {
    const double t = std::clamp(part, 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

// The part of the full width at a place of the way.
double widthAt(double way, double whole, double width, const EditorPencil &style) {
    constexpr double startRatio = 0.7;
    const double startLength = std::min(width * 1.5, whole * 0.2);
    const double start = startRatio + (1 - startRatio) * eased(way / std::max(startLength, 1e-9));
    const double tailLength = whole * style.tailFraction;
    if (tailLength <= 0)
        return start;
    const double tail = eased((way - whole + tailLength) / tailLength);
    return start * (1 - (1 - style.endWidthRatio) * tail);
}

} // namespace

QPainterPath pencilStroke(std::span<const EditorPoint> samples, double width,
                          const std::optional<EditorPencil> &style, double growth) {
    if (samples.empty() || !(width > 0))
        return {};
    Points points = thinned(samples, width);
    removeSteps(points);
    const Points way = curve(points, width);
    std::vector<StrokePoint> stroke;
    stroke.reserve(way.size());
    std::vector<double> distances{0};
    for (std::size_t at = 1; at < way.size(); ++at)
        distances.push_back(distances.back() + length(way[at] - way[at - 1]));
    const double whole = distances.back();
    for (std::size_t at = 0; at < way.size(); ++at) {
        const bool isEven = !style || way.size() == 1;
        stroke.push_back(
            {way[at], growth + width / 2 * (isEven ? 1 : widthAt(distances[at], whole, width, *style))});
    }
    return strokeOutline(stroke);
}

} // namespace tembra
