#include "editor/model/RectHandles.h"

#include <algorithm>
#include <cmath>

namespace tembra::rectHandles {

namespace {

constexpr double leastSize = 1;

// What a handle does along one axis: it holds the low edge (-1), the high one (1) or neither.
int side(int handle, bool horizontal) {
    switch (handle) {
    case 0:
        return -1;
    case 1:
        return horizontal ? 0 : -1;
    case 2:
        return horizontal ? 1 : -1;
    case 3:
        return horizontal ? 1 : 0;
    case 4:
        return 1;
    case 5:
        return horizontal ? 0 : 1;
    case 6:
        return horizontal ? -1 : 1;
    default:
        return horizontal ? -1 : 0;
    }
}

// One axis of a rectangle, its limits, and the drag along it.
struct Axis {
    double low = 0;
    double high = 0;
    double least = 0;
    double most = 0;
    int side = 0;
    double target = 0;

    [[nodiscard]] double size() const { return high - low; }
    [[nodiscard]] double inLimits(double value) const { return std::clamp(value, least, most); }
    // What stays where it is: the opposite edge, or the middle.
    [[nodiscard]] double anchor() const {
        return inLimits(side == 0 ? (low + high) / 2 : side < 0 ? high : low);
    }
    [[nodiscard]] double room(int direction) const {
        return direction < 0 ? anchor() - least : most - anchor();
    }
    // To which side of the anchor the rectangle comes to lie: where the pointer is, if it can be there.
    [[nodiscard]] int direction() const {
        const double way = target - anchor();
        const int wanted = way == 0 ? side : (way < 0 ? -1 : 1);
        return room(wanted) >= leastSize ? wanted : -wanted;
    }
    // The size from anchor to pointer.
    [[nodiscard]] double dragged() const {
        return (target - anchor()) * direction() > 0 ? std::abs(target - anchor()) : 0;
    }
    [[nodiscard]] double mostSize() const {
        return side == 0 ? 2 * std::min(room(-1), room(1)) : room(direction());
    }
    void setSize(double size) {
        const double from = anchor();
        const int to = side == 0 ? 0 : direction();
        low = inLimits(to < 0 ? from - size : to == 0 ? from - size / 2 : from);
        high = inLimits(to < 0 ? from : to == 0 ? from + size / 2 : from + size);
    }
};

void resizeFreely(Axis &axis) {
    if (axis.side != 0)
        axis.setSize(std::min(std::max(axis.dragged(), leastSize), axis.mostSize()));
    axis.low = axis.inLimits(axis.low);
    axis.high = axis.inLimits(axis.high);
}

void resizeTogether(Axis &x, Axis &y) {
    const double byX = x.side == 0 ? 0 : x.dragged() / x.size();
    const double byY = y.side == 0 ? 0 : y.dragged() / y.size();
    const double least = std::max(leastSize / x.size(), leastSize / y.size());
    const double most = std::min(x.mostSize() / x.size(), y.mostSize() / y.size());
    const double scale = std::min(std::max({byX, byY, least}), most);
    const double width = x.size() * scale;
    const double height = y.size() * scale;
    x.setSize(width);
    y.setSize(height);
}

} // namespace

QPointF position(const QRectF &rect, int handle) {
    const QPointF center = rect.center();
    return {center.x() + rect.width() / 2 * side(handle, true),
            center.y() + rect.height() / 2 * side(handle, false)};
}

QRectF resized(const QRectF &rect, int handle, QPointF point, bool preservingAspect, const QRectF &limits) {
    const bool isSound = handle >= 0 && handle < count && std::isfinite(point.x()) &&
                         std::isfinite(point.y()) && limits.width() > 0 && limits.height() > 0;
    if (!isSound)
        return rect;
    const auto axis = [](double low, double high, double least, double most, int side, double target) {
        return Axis{low, high, least, most, side, std::clamp(target, least, most)};
    };
    Axis x = axis(rect.left(), rect.right(), limits.left(), limits.right(), side(handle, true), point.x());
    Axis y = axis(rect.top(), rect.bottom(), limits.top(), limits.bottom(), side(handle, false), point.y());
    if (preservingAspect && rect.width() > 0 && rect.height() > 0) {
        resizeTogether(x, y);
    } else {
        resizeFreely(x);
        resizeFreely(y);
    }
    return {QPointF(x.low, y.low), QPointF(x.high, y.high)};
}

} // namespace tembra::rectHandles
