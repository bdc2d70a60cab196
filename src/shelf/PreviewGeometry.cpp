#include "shelf/PreviewGeometry.h"

#include <algorithm>

namespace tembra {

namespace {

constexpr QSizeF smallest{320, 200};

// The widths of all for a height of 1.
double aspects(const std::vector<QSizeF> &pictures) {
    double sum = 0;
    for (const QSizeF &picture : pictures)
        sum += picture.width() / picture.height();
    return sum;
}

double gaps(const std::vector<QSizeF> &pictures) {
    return (static_cast<double>(pictures.size()) - 1) * PreviewGeometry::spacing;
}

// How high a row of these pictures can be in that room, and no higher than the highest is.
double rowHeight(const std::vector<QSizeF> &pictures, const QSizeF &room) {
    const double highest = std::ranges::max(pictures, {}, &QSizeF::height).height();
    return std::min({highest, room.height(), (room.width() - gaps(pictures)) / aspects(pictures)});
}

QSizeF room(const QSizeF &window) {
    return {window.width() - 2 * PreviewGeometry::margin,
            window.height() - PreviewGeometry::margin - PreviewGeometry::footer};
}

} // namespace

QRectF PreviewGeometry::window(const std::vector<QSizeF> &pictures, const QRectF &available) {
    const double height = rowHeight(pictures, room(available.size()));
    const QSizeF wanted(height * aspects(pictures) + gaps(pictures) + 2 * margin, height + margin + footer);
    QRectF window({}, wanted.expandedTo(smallest).boundedTo(available.size()));
    window.moveCenter(available.center());
    return window.toAlignedRect();
}

std::vector<QRectF> PreviewGeometry::row(const std::vector<QSizeF> &pictures, const QSizeF &window) {
    const QSizeF space = room(window);
    const double height = rowHeight(pictures, space);
    const double width = height * aspects(pictures) + gaps(pictures);
    QPointF at(margin + (space.width() - width) / 2, margin + (space.height() - height) / 2);
    std::vector<QRectF> places;
    for (const QSizeF &picture : pictures) {
        places.emplace_back(at, QSizeF(height * picture.width() / picture.height(), height));
        at.rx() += places.back().width() + spacing;
    }
    return places;
}

} // namespace tembra
