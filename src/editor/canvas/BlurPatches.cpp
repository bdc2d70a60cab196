#include "editor/canvas/BlurPatches.h"

#include "editor/canvas/CanvasBackground.h"
#include "editor/canvas/ImagePart.h"
#include "imaging/GaussianBlur.h"

#include <algorithm>

namespace tembra {

namespace {

constexpr std::size_t mostKept = 128;

QRectF scaled(const QRectF &rect, double scale) {
    return {rect.topLeft() * scale, rect.size() * scale};
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
            const double scale = scene.image->level(scene.viewport.scale()).scale;
            painter.drawImage(target, patch.image, scaled(area, scale).translated(-patch.pixels.topLeft()));
        }
    }
    painter.restore();
}

// A large one is blurred where it is seen alone.
const BlurPatches::Patch &BlurPatches::patchFor(const CanvasScene &scene, const QRectF &area,
                                                EditorBlur::Strength strength, bool isKept) {
    const ImagePyramid::Level &level = scene.image->level(scene.viewport.scale());
    const QRectF inImage = area & QRectF(QPointF(), scene.image->size());
    const QRect pixels = scaled(inImage, level.scale).toAlignedRect() & level.image.rect();
    const double view = scene.viewport.viewSize().width() * scene.viewport.viewSize().height();
    if (!isKept || double(pixels.width()) * pixels.height() > view)
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
