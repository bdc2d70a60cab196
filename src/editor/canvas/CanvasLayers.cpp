#include "editor/canvas/CanvasLayers.h"

#include "editor/canvas/CanvasBackground.h"
#include "editor/canvas/ImagePart.h"
#include "editor/model/AnnotationPainter.h"
#include "editor/model/GrownRect.h"
#include "imaging/GaussianBlur.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

bool isBlur(const ScreenshotAnnotation &annotation) {
    return annotation.kind == ScreenshotAnnotation::Kind::blur;
}

// The annotations with the draft in its places, and where in them the draft begins and ends.
struct Merged {
    std::vector<ScreenshotAnnotation> annotations;
    std::size_t first = 0;
    std::size_t last = 0;
    std::vector<ScreenshotAnnotation> draftBlurs;
    std::vector<ScreenshotAnnotation> settledBlurs;
};

Merged merged(const CanvasScene &scene) {
    QHash<QUuid, const ScreenshotAnnotation *> drafts;
    for (const ScreenshotAnnotation &draft : scene.draft.annotations)
        drafts.insert(draft.id, &draft);
    Merged result;
    std::optional<std::size_t> first;
    const auto add = [&](const ScreenshotAnnotation &annotation, bool isDraft) {
        if (isBlur(annotation)) {
            (isDraft ? result.draftBlurs : result.settledBlurs).push_back(annotation);
            return;
        }
        if (isDraft) {
            first = first.value_or(result.annotations.size());
            result.last = result.annotations.size() + 1;
        }
        result.annotations.push_back(annotation);
    };
    for (const ScreenshotAnnotation &annotation : scene.annotations) {
        const auto *draft = drafts.take(annotation.id);
        add(draft ? *draft : annotation, draft != nullptr);
    }
    for (const ScreenshotAnnotation &draft : scene.draft.annotations) {
        if (drafts.contains(draft.id))
            add(draft, true);
    }
    result.first = first.value_or(result.annotations.size());
    result.last = std::max(result.last, result.first);
    return result;
}

void drawIn(QPainter &painter, const CanvasViewport &viewport,
            std::span<const ScreenshotAnnotation> annotations) {
    painter.save();
    painter.setClipRect(viewport.toView(viewport.content()), Qt::IntersectClip);
    painter.setTransform(viewport.imageToView(), true);
    drawAnnotations(annotations, painter);
    painter.restore();
}

std::vector<ScreenshotAnnotation> joined(std::vector<ScreenshotAnnotation> all,
                                         const std::vector<ScreenshotAnnotation> &more) {
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

// Every pixel of the display that a part of the image touches.
QRect devicePixels(const CanvasViewport &viewport, const QRectF &image) {
    const QRectF view = viewport.toView(image);
    const double pixels = viewport.displayScale();
    constexpr double rounding = 1e-6;
    return grown(QRectF(view.topLeft() * pixels, view.size() * pixels), -rounding).toAlignedRect();
}

void clipToDevicePixels(QPainter &painter, const QRegion &areas, double displayScale) {
    const QTransform transform = painter.transform();
    painter.scale(1 / displayScale, 1 / displayScale);
    painter.setClipRegion(areas, Qt::IntersectClip);
    painter.setTransform(transform);
}

// Whether `all` begins with `beginning`.
bool beginsWith(const std::vector<ScreenshotAnnotation> &all,
                const std::vector<ScreenshotAnnotation> &beginning) {
    return all.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), all.begin());
}

} // namespace

CanvasLayers::Split CanvasLayers::split(const CanvasScene &scene) {
    Merged all = merged(scene);
    // What is being blurred lies below everything that is drawn.
    const std::size_t first = all.draftBlurs.empty() ? all.first : 0;
    const std::size_t last = all.first == all.annotations.size() ? first : std::max(all.last, first);
    const auto at = [&all](std::size_t index) {
        return all.annotations.begin() + static_cast<std::ptrdiff_t>(index);
    };
    return {.settledBlurs = std::move(all.settledBlurs),
            .draftBlurs = std::move(all.draftBlurs),
            .below = {at(0), at(first)},
            .live = {at(first), at(last)},
            .above = {at(last), all.annotations.end()}};
}

void CanvasLayers::forget() {
    m_below = QImage();
    m_above = QImage();
}

void CanvasLayers::paint(QPainter &painter, const QRectF &exposed, const CanvasScene &scene) {
    const Split parts = split(scene);
    updateFrame(scene);
    updateBelow(scene, parts);
    updateAbove(scene, parts);
    const double pixels = scene.viewport.displayScale();
    const QRectF source(exposed.topLeft() * pixels, exposed.size() * pixels);
    painter.save();
    painter.setClipRect(exposed);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(exposed, m_below, source);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (!parts.draftBlurs.empty())
        drawBlurs(painter, scene, joined(parts.settledBlurs, parts.draftBlurs));
    drawIn(painter, scene.viewport, parts.live);
    if (!m_above.isNull())
        painter.drawImage(exposed, m_above, source);
    painter.restore();
}

void CanvasLayers::updateFrame(const CanvasScene &scene) {
    if (m_viewport == scene.viewport && m_image == scene.image)
        return;
    m_viewport = scene.viewport;
    m_image = scene.image;
    m_blurred.clear();
    forget();
}

QImage CanvasLayers::emptyLayer(const CanvasScene &scene, QImage::Format format) const {
    const double pixels = scene.viewport.displayScale();
    QImage layer((scene.viewport.viewSize() * pixels).toSize(), format);
    layer.setDevicePixelRatio(pixels);
    return layer;
}

void CanvasLayers::updateBelow(const CanvasScene &scene, const Split &split) {
    const bool isKept =
        !m_below.isNull() && m_belowBlurs == split.settledBlurs && beginsWith(split.below, m_belowDrawn);
    if (!isKept) {
        if (m_below.isNull())
            m_below = emptyLayer(scene, QImage::Format_RGB32);
        QPainter painter(&m_below);
        drawCanvasBackground(painter, scene);
        if (scene.image && !scene.image->isNull()) {
            const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
            part.draw(painter, part.level->image, part.pixels, scene.viewport);
        }
        drawBlurs(painter, scene, split.settledBlurs);
        m_belowBlurs = split.settledBlurs;
        m_belowDrawn.clear();
    }
    if (m_belowDrawn.size() == split.below.size())
        return;
    QPainter painter(&m_below);
    drawIn(painter, scene.viewport, std::span(split.below).subspan(m_belowDrawn.size()));
    m_belowDrawn = split.below;
}

void CanvasLayers::updateAbove(const CanvasScene &scene, const Split &split) {
    if (split.above.empty()) {
        m_above = QImage();
        return;
    }
    if (!m_above.isNull() && m_aboveDrawn == split.above)
        return;
    m_above = emptyLayer(scene, QImage::Format_ARGB32_Premultiplied);
    m_above.fill(Qt::transparent);
    QPainter painter(&m_above);
    drawIn(painter, scene.viewport, split.above);
    m_aboveDrawn = split.above;
}

void CanvasLayers::drawBlurs(QPainter &painter, const CanvasScene &scene, const Annotations &blurs) {
    if (!scene.image || scene.image->isNull())
        return;
    const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
    if (part.pixels.isEmpty())
        return;
    // The stronger blur lies above.
    for (const EditorBlur::Strength strength : EditorBlur::strengths) {
        QRegion areas;
        for (const ScreenshotAnnotation &blur : blurs) {
            if (blur.isDrawable() && blur.blur->strength == strength)
                areas += devicePixels(scene.viewport, QRectF(blur.shapeRect().toAlignedRect()));
        }
        if (areas.isEmpty())
            continue;
        const QImage &image = blurred(scene, strength);
        painter.save();
        clipToDevicePixels(painter, areas, scene.viewport.displayScale());
        // What is translucent lies in place of what it blurs, not above it.
        if (image.hasAlphaChannel())
            drawCanvasBackground(painter, scene);
        part.draw(painter, image, image.rect(), scene.viewport);
        painter.restore();
    }
}

const QImage &CanvasLayers::blurred(const CanvasScene &scene, EditorBlur::Strength strength) {
    QImage &kept = m_blurred[strength];
    if (kept.isNull()) {
        const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
        kept =
            gaussianBlurred(part.level->image, part.pixels, static_cast<int>(strength) * part.level->scale);
    }
    return kept;
}

} // namespace tembra
