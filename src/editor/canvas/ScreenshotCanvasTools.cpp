// Tools, their styles, text and crop.

#include "controls/Theme.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/CanvasTextEditor.h"
#include "editor/canvas/EditorCropOverlay.h"
#include "editor/canvas/EditorCropTransition.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/model/AnnotationText.h"

#include <QGuiApplication>
#include <QInputMethod>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// The style with a change; what is about an annotation alone has no part in it.
EditorStyle withChange(Kind kind, const EditorStyle &style, const EditorStyleChange &change) {
    EditorStyle result = style;
    result.color = change.color.value_or(style.color);
    result.size = change.size.value_or(style.size);
    if (change.sizeSteps != 0)
        result.size = annotationEditing::steppedSize(result.size, change.sizeSteps);
    const auto [least, most] = annotationEditing::sizeLimits(kind);
    result.size = std::clamp(result.size, least, most);
    result.isFilled = change.isFilled.value_or(style.isFilled);
    result.hasBackground = change.hasBackground.value_or(style.hasBackground);
    result.strength = change.strength.value_or(style.strength);
    return result;
}

} // namespace

void ScreenshotCanvasView::setTool(EditorTool tool) {
    if (tool == m_tool)
        return;
    cancelGesture();
    finishTyping();
    leaveTool(tool);
    m_tool = tool;
    m_nextNumber.reset();
    m_hoveredWord.reset();
    if (m_document && tool != EditorTool::select)
        m_document->setSelectedIDs({});
    if (tool == EditorTool::crop && m_document)
        beginCrop();
    updateHover(mapFromGlobal(QPointF(QCursor::pos())));
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::leaveTool(EditorTool next) {
    if (next == EditorTool::crop)
        m_toolBeforeCrop = m_tool;
    else if (m_cropSession)
        endCrop(std::nullopt);
}

void ScreenshotCanvasView::setBlurMode(BlurMode mode) {
    if (mode == m_blurMode)
        return;
    m_blurMode = mode;
    m_hoveredWord.reset();
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::setWords(std::vector<QRectF> words) {
    m_words = std::move(words);
    m_hoveredWord.reset();
    update();
}

EditorStyle ScreenshotCanvasView::styleOfTool(Kind kind) const {
    return m_styles.style(kind, m_document->originalSize());
}

// What a tool draws next, where nobody knows yet.
ScreenshotAnnotation ScreenshotCanvasView::prototype(Kind kind) const {
    ScreenshotAnnotation annotation = annotationEditing::made(kind, styleOfTool(kind));
    if (annotation.number)
        annotation.number->value = m_nextNumber.value_or(m_document->nextNumber());
    return annotation;
}

std::vector<ScreenshotAnnotation> ScreenshotCanvasView::styledAnnotations() const {
    if (!m_document || m_cropSession)
        return {};
    if (m_textEditor)
        return {m_textEditor->annotation()};
    std::vector<ScreenshotAnnotation> selected = m_document->selectedAnnotations();
    if (const auto kind = annotationKind(m_tool); kind && selected.empty())
        selected.push_back(prototype(*kind));
    return selected;
}

EditorColor ScreenshotCanvasView::color() const {
    return m_styles.style(Kind::arrow, {}).color;
}

void ScreenshotCanvasView::restyle(const EditorStyleChange &change) {
    if (!m_document)
        return;
    const std::vector<ScreenshotAnnotation> styled = styledAnnotations();
    const QSizeF image = m_document->originalSize();
    for (const ScreenshotAnnotation &annotation : styled) {
        EditorStyle style = withChange(annotation.kind, annotationEditing::styleOf(annotation), change);
        if (annotation.kind == Kind::blur)
            style.color = styleOfTool(Kind::blur).color;
        m_styles.remember(annotation.kind, style, image);
    }
    if (change.color && styled.empty())
        m_styles.remember(Kind::arrow, withChange(Kind::arrow, styleOfTool(Kind::arrow), change), image);
    if (m_textEditor)
        m_textEditor->restyle(
            annotationEditing::restyled(m_textEditor->annotation(), change, m_viewport.content()));
    else if (!m_document->selectedIDs().isEmpty())
        commands().restyle(change);
    else if (change.number && m_tool == EditorTool::number)
        m_nextNumber = *change.number;
    Q_EMIT changed();
}

void ScreenshotCanvasView::stepSize(EditorTool tool, int steps) {
    const auto kind = annotationKind(tool);
    if (!m_document || !kind)
        return;
    const EditorStyleChange change{.sizeSteps = steps};
    const std::vector<ScreenshotAnnotation> styled = styledAnnotations();
    if (tool == m_tool || std::ranges::any_of(styled, [&](const auto &one) { return one.kind == *kind; }))
        return restyle(change);
    m_styles.remember(*kind, withChange(*kind, styleOfTool(*kind), change), m_document->originalSize());
    Q_EMIT changed();
}

void ScreenshotCanvasView::typeNewText(QPointF image) {
    ScreenshotAnnotation annotation = prototype(Kind::text);
    const double size = annotation.text->fontSize;
    const double padding = AnnotationText::horizontalPadding(size);
    const QRectF limits = m_viewport.content();
    // Room for a few words to the right, and the pointer in the middle of the first line.
    const double least = std::min(8 * size + 2 * padding, limits.width());
    const double x = std::clamp(image.x() - padding, limits.left(), limits.right() - least);
    const double height = AnnotationText(*annotation.text).size().height();
    const double y =
        std::clamp(image.y() - height / 2, limits.top(), std::max(limits.bottom() - height, limits.top()));
    annotation.points = {{std::round(x), std::round(y)}};
    annotation.text->maximumWidth = std::max(limits.right() - annotation.points[0].x - 2 * padding, size);
    m_isNewText = true;
    typeText(annotation);
}

void ScreenshotCanvasView::tellNumbersEnd() {
    Q_EMIT failed(tr("Numbers end at 9,999."));
}

void ScreenshotCanvasView::typeText(const ScreenshotAnnotation &annotation) {
    m_isNewText = !known(annotation.id);
    m_document->setSelectedIDs(m_isNewText ? QSet<QUuid>() : QSet<QUuid>{annotation.id});
    m_textEditor = new CanvasTextEditor(annotation, m_viewport, this);
    connect(m_textEditor, &CanvasTextEditor::finished, this, [this] {
        finishTyping();
        setFocus();
    });
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::finishTyping() {
    if (!m_textEditor)
        return;
    // What is still being composed is meant too.
    QGuiApplication::inputMethod()->commit();
    if (!m_textEditor)
        return;
    const ScreenshotAnnotation typed = m_textEditor->annotation();
    CanvasTextEditor *editor = m_textEditor;
    m_textEditor.clear();
    // What is hidden hands the focus on as the Tab key does, and that selects.
    if (editor->hasFocus())
        setFocus();
    editor->hide();
    // It may be what called.
    editor->deleteLater();
    if (!typed.text->string.trimmed().isEmpty()) {
        commands().put({typed}, m_isNewText ? tr("Add text") : tr("Change text"));
        m_document->setSelectedIDs({typed.id});
    } else if (!m_isNewText) {
        m_document->setSelectedIDs({typed.id});
        m_document->deleteSelection();
    }
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::beginCrop() {
    m_cropSession = std::make_unique<EditorCropSession>(m_document->originalSize(), m_document->cropRect());
    m_viewport.setContent(shownContent());
    m_viewport.fit();
    m_cropOverlay = new EditorCropOverlay(*m_cropSession, m_viewport, this);
    // A press beside the crop leaves the keys to it.
    setFocusProxy(m_cropOverlay);
    connect(m_cropOverlay, &EditorCropOverlay::changed, this, &ScreenshotCanvasView::changed);
    connect(m_cropOverlay, &EditorCropOverlay::applied, this, &ScreenshotCanvasView::applyCrop);
    connect(m_cropOverlay, &EditorCropOverlay::cancelled, this, &ScreenshotCanvasView::cancelCrop);
}

void ScreenshotCanvasView::applyCrop() {
    if (!m_cropSession)
        return;
    const QRectF crop = m_cropSession->rect();
    const QRectF source = m_viewport.toView(crop);
    m_cropOverlay->hide();
    // As far as it is seen.
    const QRectF seen = source & QRectF(rect());
    const QPixmap fragment = grab(seen.toAlignedRect());
    const QRectF part = m_viewport.toImage(seen);
    endCrop(crop);
    auto *transition = new EditorCropTransition(fragment, seen, Theme::of(*this).canvas, this);
    transition->animate(m_viewport.toView(part), [transition](bool) { transition->deleteLater(); });
    setTool(m_toolBeforeCrop);
}

void ScreenshotCanvasView::cancelCrop() {
    if (m_cropSession)
        setTool(m_toolBeforeCrop);
}

void ScreenshotCanvasView::endCrop(const std::optional<QRectF> &crop) {
    const std::unique_ptr<EditorCropSession> session = std::exchange(m_cropSession, nullptr);
    setFocusProxy(nullptr);
    // Before what has it is hidden, which would hand it on as the Tab key does.
    setFocus();
    if (m_cropOverlay) {
        m_cropOverlay->hide();
        m_cropOverlay->deleteLater();
        m_cropOverlay.clear();
    }
    if (crop && *crop != session->initial())
        m_document->applyCrop(*crop);
    m_viewport.setContent(shownContent());
    m_viewport.fit();
    viewportChanged();
}

} // namespace tembra
