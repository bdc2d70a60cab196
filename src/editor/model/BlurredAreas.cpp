#include "editor/model/BlurredAreas.h"

#include "imaging/GaussianBlur.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace tembra {

namespace {

// How far beyond its area a blur reads, in standard deviations.
constexpr int reach = 3;

std::vector<QRect> areasOf(std::span<const ScreenshotAnnotation> annotations, EditorBlur::Strength strength,
                           QRect visible) {
    std::vector<QRect> areas;
    for (const ScreenshotAnnotation &annotation : annotations) {
        if (!annotation.blur || annotation.blur->strength != strength || annotation.points.size() < 2)
            continue;
        const QRect area = annotation.shapeRect().intersected(QRectF(visible)).toAlignedRect() & visible;
        if (!area.isEmpty())
            areas.push_back(area);
    }
    return areas;
}

qint64 costOf(QRect area, int margin) {
    return qint64{area.width() + 2 * margin} * (area.height() + 2 * margin);
}

} // namespace

std::optional<BlurredAreas>
BlurredAreas::of(const QImage &image, std::span<const ScreenshotAnnotation> annotations, QRect visible) {
    BlurredAreas blurred;
    QImage source;
    for (const EditorBlur::Strength strength : EditorBlur::strengths) {
        const auto areas = areasOf(annotations, strength, visible);
        if (areas.empty())
            continue;
        if (source.isNull())
            source =
                image.hasAlphaChannel() ? image.convertToFormat(QImage::Format_ARGB32_Premultiplied) : image;
        if (source.isNull() || !blurred.add(source, areas, strength))
            return std::nullopt;
    }
    return blurred;
}

bool BlurredAreas::add(const QImage &image, const std::vector<QRect> &areas, EditorBlur::Strength strength) {
    const int sigma = static_cast<int>(strength);
    const QRect all = std::accumulate(areas.begin(), areas.end(), QRect(), std::bit_or<>());
    const qint64 separately =
        std::accumulate(areas.begin(), areas.end(), qint64{0},
                        [&](qint64 sum, QRect area) { return sum + costOf(area, reach * sigma); });
    // Many areas near each other are blurred as one.
    const QImage together =
        separately > costOf(all, reach * sigma) ? gaussianBlurred(image, all, sigma) : QImage();
    for (const QRect area : areas) {
        if (!together.isNull()) {
            m_patches.push_back({together, all.topLeft(), area});
            continue;
        }
        m_patches.push_back({gaussianBlurred(image, area, sigma), area.topLeft(), area});
        if (m_patches.back().image.isNull())
            return false;
    }
    return true;
}

std::vector<QRect> BlurredAreas::areas(QPoint origin) const {
    std::vector<QRect> areas;
    areas.reserve(m_patches.size());
    for (const Patch &patch : m_patches)
        areas.push_back(patch.area.translated(-origin));
    return areas;
}

void BlurredAreas::draw(QPainter &painter) const {
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const Patch &patch : m_patches)
        painter.drawImage(patch.area.topLeft(), patch.image, patch.area.translated(-patch.origin));
    painter.restore();
}

} // namespace tembra
