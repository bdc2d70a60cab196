#include "editor/canvas/CanvasLayers.h"

#include "editor/canvas/CanvasBackground.h"
#include "editor/model/AnnotationPainter.h"
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

// Whether `all` begins with `beginning`.
bool beginsWith(const std::vector<ScreenshotAnnotation> &all,
                const std::vector<ScreenshotAnnotation> &beginning) {
    return all.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), all.begin());
}

} // namespace

CanvasLayers::Split CanvasLayers::split(const CanvasScene &scene) {
    Merged all = merged(scene);
    const auto at = [&all](std::size_t index) {
        return all.annotations.begin() + static_cast<std::ptrdiff_t>(index);
    };
    return {.settledBlurs = std::move(all.settledBlurs),
            .draftBlurs = std::move(all.draftBlurs),
            .below = {at(0), at(all.first)},
            .live = {at(all.first), at(all.last)},
            .above = {at(all.last), all.annotations.end()}};
}

void CanvasLayers::forget() {
    m_picture = QImage();
    m_below = {};
    m_above = {};
}

void CanvasLayers::paint(QPainter &painter, const QRectF &exposed, const CanvasScene &scene) {
    const Split parts = split(scene);
    updateFrame(scene);
    updatePicture(scene, parts);
    updateInk(m_below, scene, parts.below);
    updateInk(m_above, scene, parts.above);
    const double pixels = scene.viewport.displayScale();
    const QRectF source(exposed.topLeft() * pixels, exposed.size() * pixels);
    painter.save();
    painter.setClipRect(exposed);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(exposed, m_picture, source);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawBlurs(painter, scene, parts.draftBlurs);
    if (!m_below.image.isNull())
        painter.drawImage(exposed, m_below.image, source);
    drawIn(painter, scene.viewport, parts.live);
    if (!m_above.image.isNull())
        painter.drawImage(exposed, m_above.image, source);
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

QImage CanvasLayers::emptyLayer(const CanvasScene &scene, QImage::Format format) {
    const double pixels = scene.viewport.displayScale();
    QImage layer((scene.viewport.viewSize() * pixels).toSize(), format);
    layer.setDevicePixelRatio(pixels);
    return layer;
}

void CanvasLayers::updatePicture(const CanvasScene &scene, const Split &split) {
    if (!m_picture.isNull() && m_pictureBlurs == split.settledBlurs)
        return;
    if (m_picture.isNull())
        m_picture = emptyLayer(scene, QImage::Format_RGB32);
    QPainter painter(&m_picture);
    drawCanvasBackground(painter, scene);
    if (scene.image && !scene.image->isNull()) {
        const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
        part.draw(painter, part.level->image, part.pixels, scene.viewport);
    }
    drawBlurs(painter, scene, split.settledBlurs);
    m_pictureBlurs = split.settledBlurs;
}

void CanvasLayers::updateInk(Ink &ink, const CanvasScene &scene, const Annotations &annotations) const {
    if (annotations.empty()) {
        ink = {};
        return;
    }
    if (ink.image.isNull() || !beginsWith(annotations, ink.drawn)) {
        if (ink.image.isNull())
            ink.image = emptyLayer(scene, QImage::Format_ARGB32_Premultiplied);
        ink.image.fill(Qt::transparent);
        ink.drawn.clear();
    }
    if (ink.drawn.size() == annotations.size())
        return;
    QPainter painter(&ink.image);
    drawIn(painter, scene.viewport, std::span(annotations).subspan(ink.drawn.size()));
    ink.drawn = annotations;
}

void CanvasLayers::drawBlurs(QPainter &painter, const CanvasScene &scene, const Annotations &blurs) {
    if (blurs.empty() || !scene.image || scene.image->isNull())
        return;
    const ImagePart part = ImagePart::of(*scene.image, scene.viewport);
    const QRectF seen = part.target & scene.viewport.toView(scene.viewport.content());
    // The stronger blur lies above.
    for (const EditorBlur::Strength strength : EditorBlur::strengths) {
        for (const ScreenshotAnnotation &blur : blurs) {
            if (!blur.isDrawable() || blur.blur->strength != strength)
                continue;
            const QRectF area = scene.viewport.toView(QRectF(blur.shapeRect().toAlignedRect())) & seen;
            if (!area.isEmpty())
                drawBlur(painter, scene, part, area, strength);
        }
    }
}

// What lets something through is drawn over nothing but the chequerboard.
void CanvasLayers::drawBlur(QPainter &painter, const CanvasScene &scene, const ImagePart &part,
                            const QRectF &area, EditorBlur::Strength strength) {
    const QImage &image = blurred(scene, strength);
    if (image.isNull())
        return;
    const double pixels = image.width() / part.target.width();
    const QRectF source((area.topLeft() - part.target.topLeft()) * pixels, area.size() * pixels);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    if (image.hasAlphaChannel())
        drawChequerboard(painter, area, scene.viewport);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(area, image, source);
    painter.restore();
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
