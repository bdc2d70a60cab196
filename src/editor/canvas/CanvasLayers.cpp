#include "editor/canvas/CanvasLayers.h"

#include "editor/canvas/CanvasBackground.h"
#include "editor/canvas/ImagePart.h"
#include "editor/model/AnnotationPainter.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace tembra {

namespace {

// So many are drawn within a frame.
constexpr std::size_t fewAnnotations = 12;

bool isBlur(const ScreenshotAnnotation &annotation) {
    return annotation.kind == ScreenshotAnnotation::Kind::blur;
}

std::vector<ScreenshotAnnotation> ofStrength(const std::vector<ScreenshotAnnotation> &blurs,
                                             EditorBlur::Strength strength) {
    std::vector<ScreenshotAnnotation> result;
    std::ranges::copy_if(blurs, std::back_inserter(result), [strength](const ScreenshotAnnotation &blur) {
        return blur.blur && blur.blur->strength == strength;
    });
    return result;
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
    m_above = {};
    m_moving = {};
    refine();
}

void CanvasLayers::refine() {
    m_below = {};
    m_isApproximate = false;
}

void CanvasLayers::paint(QPainter &painter, const QRectF &exposed, const CanvasScene &scene) {
    const Split parts = split(scene);
    updateFrame(scene, parts);
    updatePicture(scene, parts);
    if (m_isApproximate && m_below.drawn != parts.below)
        refine();
    if (!m_isApproximate)
        updateInk(m_below, scene, parts.below);
    updateInk(m_above, scene, parts.above);
    const double pixels = scene.viewport.displayScale();
    const QRectF source(exposed.topLeft() * pixels, exposed.size() * pixels);
    painter.save();
    painter.setClipRect(exposed);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(exposed, m_picture, source);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawDraftBlurs(painter, scene, parts);
    if (m_isApproximate)
        drawScaledInk(painter, scene);
    else if (!m_below.image.isNull())
        painter.drawImage(exposed, m_below.image, source);
    drawLive(painter, scene, parts);
    if (!m_above.image.isNull())
        painter.drawImage(exposed, m_above.image, source);
    painter.restore();
}

// Another viewport makes another picture. What is drawn on the image is expensive: after a pan it is shifted,
// during a zoom it is scaled.
void CanvasLayers::updateFrame(const CanvasScene &scene, const Split &split) {
    m_blurs.setView(scene);
    if (m_viewport == scene.viewport && m_image == scene.image)
        return;
    const CanvasViewport before = m_viewport;
    m_viewport = scene.viewport;
    m_image = scene.image;
    m_picture = QImage();
    m_above = {};
    m_moving = {};
    const bool isSameView =
        before.viewSize() == m_viewport.viewSize() && before.displayScale() == m_viewport.displayScale();
    if (before == m_viewport)
        return;
    if (!isSameView || m_below.image.isNull() || m_below.drawn != split.below ||
        before.content() != m_viewport.content())
        return refine();
    if (before.scale() != m_viewport.scale()) {
        m_inkViewport = m_isApproximate ? m_inkViewport : before;
        m_isApproximate = split.below.size() > fewAnnotations;
        if (!m_isApproximate)
            m_below = {};
    } else if (!m_isApproximate) {
        shiftInk(scene, m_viewport.toView(QPointF()) - before.toView(QPointF()));
    }
}

// The origin of a view lies on the display's pixels, so a shift is one of whole pixels.
void CanvasLayers::shiftInk(const CanvasScene &scene, QPointF shift) {
    const double pixels = scene.viewport.displayScale();
    QImage shifted = emptyLayer(scene, QImage::Format_ARGB32_Premultiplied);
    shifted.fill(Qt::transparent);
    QPainter painter(&shifted);
    const QRectF view(QPointF(), scene.viewport.viewSize());
    const QRectF kept = view.translated(shift) & view;
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPointF(std::round(shift.x() * pixels), std::round(shift.y() * pixels)) / pixels,
                      m_below.image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QPoint first(static_cast<int>(std::ceil(kept.left())), static_cast<int>(std::ceil(kept.top())));
    const QPoint last(static_cast<int>(kept.right()) - 1, static_cast<int>(kept.bottom()) - 1);
    for (const QRect &strip : QRegion(view.toAlignedRect()) - QRect(first, last)) {
        const QRectF seen = scene.viewport.toImage(QRectF(strip));
        Annotations inStrip;
        for (std::size_t index = 0; index < m_below.drawn.size(); ++index) {
            if (m_below.bounds[index].intersects(seen))
                inStrip.push_back(m_below.drawn[index]);
        }
        painter.save();
        painter.setClipRect(strip);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(strip, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        drawIn(painter, scene.viewport, inStrip);
        painter.restore();
    }
    m_below.image = std::move(shifted);
}

void CanvasLayers::drawScaledInk(QPainter &painter, const CanvasScene &scene) const {
    const QRectF whole = m_inkViewport.toImage(QRectF(QPointF(), m_inkViewport.viewSize()));
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRect(scene.viewport.toView(scene.viewport.content()), Qt::IntersectClip);
    painter.drawImage(scene.viewport.toView(whole), m_below.image, m_below.image.rect());
    painter.restore();
}

// Stronger ones that are settled stay above it.
void CanvasLayers::drawDraftBlurs(QPainter &painter, const CanvasScene &scene, const Split &split) {
    bool hasWeaker = false;
    for (const EditorBlur::Strength strength : EditorBlur::strengths) {
        if (hasWeaker)
            m_blurs.draw(painter, scene, ofStrength(split.settledBlurs, strength), true);
        const Annotations drafts = ofStrength(split.draftBlurs, strength);
        m_blurs.draw(painter, scene, drafts, false);
        hasWeaker = hasWeaker || !drafts.empty();
    }
}

// Many that are only moved are drawn once, as long as all of them were seen then.
void CanvasLayers::drawLive(QPainter &painter, const CanvasScene &scene, const Split &split) {
    const auto &movedBy = scene.draft.movedBy;
    const auto moved = std::ranges::count_if(scene.draft.annotations, std::not_fn(isBlur));
    const bool areAllMoved = static_cast<std::size_t>(moved) == split.live.size();
    if (!movedBy || !areAllMoved || split.live.size() <= fewAnnotations) {
        m_moving = {};
        return drawIn(painter, scene.viewport, split.live);
    }
    if (m_moving.image.isNull()) {
        const QRectF seen = scene.viewport.toImage(QRectF(QPointF(), scene.viewport.viewSize()));
        if (!seen.contains(scene.draft.movedBounds))
            return drawIn(painter, scene.viewport, split.live);
        m_movedBefore = *movedBy;
        m_moving.image = emptyLayer(scene, QImage::Format_ARGB32_Premultiplied);
        m_moving.image.fill(Qt::transparent);
        QPainter moving(&m_moving.image);
        moving.setTransform(scene.viewport.imageToView());
        drawAnnotations(split.live, moving);
    }
    const double pixels = scene.viewport.displayScale();
    const QPointF shift = (*movedBy - m_movedBefore) * scene.viewport.zoom() * pixels;
    painter.save();
    painter.setClipRect(scene.viewport.toView(scene.viewport.content()), Qt::IntersectClip);
    painter.drawImage(QPointF(std::round(shift.x()), std::round(shift.y())) / pixels, m_moving.image);
    painter.restore();
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
    m_blurs.draw(painter, scene, split.settledBlurs, true);
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
    const auto added = std::span(annotations).subspan(ink.drawn.size());
    drawIn(painter, scene.viewport, added);
    ink.bounds.resize(ink.drawn.size());
    for (const ScreenshotAnnotation &annotation : added)
        ink.bounds.push_back(annotation.bounds());
    ink.drawn = annotations;
}

} // namespace tembra
