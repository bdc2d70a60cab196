#include "editor/canvas/AlignmentGuides.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace tembra {

namespace {

// One axis of a rectangle: its edges and its middle, and its extent along the other axis.
struct Track {
    std::array<double, 3> places;
    double from = 0;
    double to = 0;
};

Track horizontal(const QRectF &rect) {
    return {{rect.left(), rect.center().x(), rect.right()}, rect.top(), rect.bottom()};
}

Track vertical(const QRectF &rect) {
    return {{rect.top(), rect.center().y(), rect.bottom()}, rect.left(), rect.right()};
}

struct Match {
    double correction = 0;
    double place = 0;
    double from = 0;
    double to = 0;
};

std::optional<Match> nearest(const Track &moving, std::span<const QRectF> targets, double tolerance,
                             Track (*track)(const QRectF &)) {
    std::optional<Match> best;
    for (const QRectF &rect : targets) {
        const Track target = track(rect);
        for (const double place : target.places) {
            for (const double own : moving.places) {
                const double correction = place - own;
                if (std::abs(correction) > (best ? std::abs(best->correction) - 1e-9 : tolerance))
                    continue;
                best = Match{correction, place, std::min(target.from, moving.from),
                             std::max(target.to, moving.to)};
            }
        }
    }
    return best;
}

} // namespace

AlignmentGuides AlignmentGuides::of(const QRectF &moving, std::span<const QRectF> targets, double tolerance) {
    AlignmentGuides guides;
    if (const auto x = nearest(horizontal(moving), targets, tolerance, horizontal)) {
        guides.correction.setX(x->correction);
        guides.lines.emplace_back(x->place, x->from, x->place, x->to);
    }
    if (const auto y = nearest(vertical(moving), targets, tolerance, vertical)) {
        guides.correction.setY(y->correction);
        guides.lines.emplace_back(y->from, y->place, y->to, y->place);
    }
    return guides;
}

} // namespace tembra
