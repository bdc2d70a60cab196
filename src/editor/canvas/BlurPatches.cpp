#include "editor/canvas/BlurPatches.h"

#include "editor/canvas/CanvasBackground.h"
#include "editor/canvas/ImagePart.h"
#include "imaging/GaussianBlur.h"

#include <algorithm>

namespace tembra {

namespace {

constexpr std::size_t mostKept = 128;

// In pixels: a Gaussian that is wider than this looks the same from every second pixel.
constexpr double widestSampled = 6;

QRectF scaled(const QRectF &rect, double scale) {
    return {rect.topLeft() * scale, rect.size() * scale};
}

QRect pixelsOf(const QRectF &area, const ImagePyramid::Level &level) {
    return scaled(area, level.scale).toAlignedRect() & level.image.rect();
}

double viewPixels(const CanvasScene &scene) {
    return scene.viewport.viewSize().width() * scene.viewport.viewSize().height();
}

bool isLarger(const QRect &pixels, double count) {
    return static_cast<double>(pixels.width()) * pixels.height() > count;
}

// The level that the zoom asks for, or a smaller one for a blur that has more pixels there than the view and
// is strong enough to lose nothing by it.
const ImagePyramid::Level &levelFor(const CanvasScene &scene, const QRectF &area,
                                    EditorBlur::Strength strength) {
    const ImagePyramid::Level *level = &scene.image->level(scene.viewport.scale());
    while (isLarger(pixelsOf(area, *level), viewPixels(scene)) &&
           static_cast<int>(strength) * level->scale > widestSampled) {
        const ImagePyramid::Level &half = scene.image->level(level->scale / 2);
        if (&half == level)
            break;
        level = &half;
    }
    return *level;
}

} // namespace

void BlurPatches::setView(const CanvasScene &scene) {
    if (m_image != scene.image)
        m_kept.clear();
    if (m_image != scene.image || m_viewport != scene.viewport)
        m_view.clear();
    m_image = scene.image;
    m_viewport = scene.viewport;
}

void BlurPatches::draw(QPainter &painter, const CanvasScene &scene,
                       const std::vector<ScreenshotAnnotation> &blurs, bool areKept) {
    if (blurs.empty() || !scene.image || scene.image->isNull())
        return;
    const QRectF seen =
        scene.viewport.toImage(QRectF(QPointF(), scene.viewport.viewSize())) & scene.viewport.content();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const EditorBlur::Strength strength : EditorBlur::strengths) {
        for (const ScreenshotAnnotation &blur : blurs) {
            if (!blur.isDrawable() || blur.blur->strength != strength)
                continue;
            const QRectF whole(blur.shapeRect().toAlignedRect());
            const QRectF area = whole & seen;
            if (area.isEmpty())
                continue;
            const Patch &patch = patchFor(scene, whole, strength, areKept);
            const QRectF target = scene.viewport.toView(area);
            // What lets something through lies over nothing but the chequerboard.
            if (patch.image.hasAlphaChannel())
                drawChequerboard(painter, target, scene.viewport);
            painter.drawImage(target, patch.image,
                              scaled(area, patch.level->scale).translated(-patch.pixels.topLeft()));
        }
    }
    painter.restore();
}

// One that is too large is blurred where it is seen alone.
const BlurPatches::Patch &BlurPatches::patchFor(const CanvasScene &scene, const QRectF &area,
                                                EditorBlur::Strength strength, bool isKept) {
    if (!isKept)
        return viewPatch(scene, strength);
    const QRectF inImage = area & QRectF(QPointF(), scene.image->size());
    const ImagePyramid::Level &level = levelFor(scene, inImage, strength);
    const QRect pixels = pixelsOf(inImage, level);
    if (isLarger(pixels, viewPixels(scene)))
        return viewPatch(scene, strength);
    const auto known = std::ranges::find_if(m_kept, [&](const Patch &patch) {
        return patch.level == &level && patch.strength == strength && patch.pixels == pixels;
    });
    if (known != m_kept.end()) {
        m_kept.splice(m_kept.begin(), m_kept, known);
        return m_kept.front();
    }
    m_kept.push_front({&level, strength, pixels,
                       gaussianBlurred(level.image, pixels, static_cast<int>(strength) * level.scale)});
    if (m_kept.size() > mostKept)
        m_kept.pop_back();
    return m_kept.front();
}

const BlurPatches::Patch &BlurPatches::viewPatch(const CanvasScene &scene, EditorBlur::Strength strength) {
    Patch &patch = m_view[strength];
    if (patch.image.isNull()) {
        const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
        patch = {
            part.level, strength, part.pixels,
            gaussianBlurred(part.level->image, part.pixels, static_cast<int>(strength) * part.level->scale)};
    }
    return patch;
}

} // namespace tembra
