// What the canvas shows.

#include "editor/canvas/ScreenshotCanvasView.h"

#include "controls/Theme.h"
#include "editor/canvas/AccessibleCanvas.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/CanvasBackground.h"
#include "editor/canvas/CanvasDecorations.h"
#include "editor/canvas/CanvasTextEditor.h"
#include "editor/canvas/EditorCropOverlay.h"
#include "editor/model/GrownRect.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// A zoom has ended when nothing came for so long.
constexpr auto zoomRest = 80ms;

} // namespace

ScreenshotCanvasView::ScreenshotCanvasView(UserDefaults &defaults, Pasteboard &pasteboard,
                                           Scheduler &scheduler, QWidget *parent)
    : QWidget(parent), m_pasteboard(pasteboard), m_scheduler(scheduler), m_styles(defaults) {
    installAccessibleCanvas();
    setAccessibleName(tr("Screenshot"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(240, 160);
    grabGesture(Qt::PinchGesture);
}

ScreenshotCanvasView::~ScreenshotCanvasView() = default;

void ScreenshotCanvasView::setDocument(ScreenshotEditDocument *document,
                                       std::shared_ptr<const ImagePyramid> image) {
    cancelGesture();
    delete m_textEditor;
    if (m_cropSession) {
        endCrop(std::nullopt);
        m_tool = m_toolBeforeCrop;
    }
    m_document = document;
    m_image = std::move(image);
    m_words.clear();
    m_hoveredWord.reset();
    m_nextNumber.reset();
    m_viewport.setContent(shownContent());
    m_viewport.fit();
    const QSizeF pixels = shownContent().size();
    setAccessibleDescription(m_document ? tr("%1 by %2 pixels").arg(pixels.width()).arg(pixels.height())
                                        : QString());
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::setImage(std::shared_ptr<const ImagePyramid> image) {
    m_image = std::move(image);
    update();
}

// All of the image while a crop is drawn, else what the crop keeps.
QRectF ScreenshotCanvasView::shownContent() const {
    if (!m_document)
        return {0, 0, 1, 1};
    const QRectF all(QPointF(), m_document->originalSize());
    return m_cropSession ? all : m_document->cropRect().value_or(all);
}

void ScreenshotCanvasView::documentChanged() {
    // An undo in the middle of a drag ends it.
    cancelGesture();
    updateContent();
    update();
    tellAssistivePrograms();
    Q_EMIT changed();
}

void ScreenshotCanvasView::tellAssistivePrograms() {
    const std::size_t count = m_document->annotations().size();
    if (!QAccessible::isActive())
        return;
    if (count != m_toldCount) {
        QAccessibleEvent event(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
    m_toldCount = count;
    tellSelected();
}

// A single one has the keyboard then.
void ScreenshotCanvasView::tellSelected() {
    const QSet<QUuid> &selected = m_document->selectedIDs();
    if (selected == m_toldSelection)
        return;
    m_toldSelection = selected;
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(this);
    QAccessibleInterface *one = list && selected.size() == 1 ? list->focusChild() : nullptr;
    if (!one)
        return;
    for (const QAccessible::Event what : {QAccessible::Focus, QAccessible::Selection}) {
        QAccessibleEvent event(one, what);
        QAccessible::updateAccessibility(&event);
    }
}

void ScreenshotCanvasView::updateContent() {
    if (m_viewport.content() == shownContent())
        return;
    m_viewport.setContent(shownContent());
    viewportChanged();
}

void ScreenshotCanvasView::viewportChanged() {
    if (m_textEditor)
        m_textEditor->setViewport(m_viewport);
    if (m_cropOverlay)
        m_cropOverlay->refresh();
    update();
    Q_EMIT changed();
}

void ScreenshotCanvasView::resizeEvent(QResizeEvent *) {
    m_viewport.setView(size(), devicePixelRatioF());
    viewportChanged();
}

void ScreenshotCanvasView::changeEvent(QEvent *event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        m_layers.forget();
        update();
    }
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        holdSpace(false);
    QWidget::changeEvent(event);
}

CanvasScene ScreenshotCanvasView::scene() const {
    const Theme &theme = Theme::of(*this);
    QColor dots = theme.text;
    dots.setAlphaF(0.05F);
    return {.viewport = m_viewport,
            .image = m_image,
            .annotations =
                m_document ? std::span(m_document->annotations()) : std::span<const ScreenshotAnnotation>(),
            .draft = m_draft,
            .background = theme.canvas,
            .dots = dots};
}

void ScreenshotCanvasView::paintEvent(QPaintEvent *event) {
    if (m_viewport.displayScale() != devicePixelRatioF()) {
        m_viewport.setView(size(), devicePixelRatioF());
        // What lies over the canvas moves too, after this.
        QMetaObject::invokeMethod(this, &ScreenshotCanvasView::viewportChanged, Qt::QueuedConnection);
    }
    QPainter painter(this);
    const QRectF exposed = event->rect();
    CanvasScene shown = scene();
    // A text that is being typed is shown by its editor.
    std::vector<ScreenshotAnnotation> others;
    if (m_textEditor && !m_isNewText) {
        std::ranges::copy_if(shown.annotations, std::back_inserter(others),
                             [&](const auto &one) { return one.id != m_textEditor->annotation().id; });
        shown.annotations = others;
    }
    m_layers.paint(painter, exposed, shown);
    if (m_layers.isApproximate())
        m_refinement = m_scheduler.schedule(zoomRest, [this] {
            m_layers.refine();
            update();
        });
    drawDecorations(painter, exposed);
}

void ScreenshotCanvasView::drawDecorations(QPainter &painter, const QRectF &exposed) {
    drawPixelGrid(painter, m_viewport, exposed);
    if (m_cropSession || m_textEditor || !m_document)
        return;
    drawSelection(painter);
    CanvasDecorations::drawDraft(painter, m_viewport, m_draft);
    if (!m_draft.words.empty()) {
        for (const QRectF &word : m_draft.words)
            CanvasDecorations::drawWord(painter, m_viewport, word);
    } else if (m_hoveredWord) {
        CanvasDecorations::drawWord(painter, m_viewport, *m_hoveredWord);
    }
}

// Many that are moved keep the frames that they had.
void ScreenshotCanvasView::drawSelection(QPainter &painter) {
    const qsizetype count = m_draft.selection ? m_draft.selection->size() : m_document->selectedIDs().size();
    if (count > 1 && m_draft.movedBy) {
        painter.save();
        const QPointF shift = *m_draft.movedBy * m_viewport.zoom();
        painter.translate(shift);
        CanvasDecorations::drawFrames(painter, m_viewport, m_frames);
        painter.restore();
        return;
    }
    const std::vector<ScreenshotAnnotation> selected = shownSelection();
    if (selected.size() == 1)
        return CanvasDecorations::drawSelected(painter, m_viewport, selected.front());
    m_frames.clear();
    std::ranges::transform(selected, std::back_inserter(m_frames), CanvasDecorations::frameOf);
    CanvasDecorations::drawFrames(painter, m_viewport, m_frames);
}

// As the draft has them.
std::vector<ScreenshotAnnotation> ScreenshotCanvasView::shownSelection() const {
    const QSet<QUuid> &ids = m_draft.selection ? *m_draft.selection : m_document->selectedIDs();
    std::vector<ScreenshotAnnotation> selected;
    for (const ScreenshotAnnotation &annotation : m_document->annotations()) {
        if (!ids.contains(annotation.id))
            continue;
        const auto *draft = annotationEditing::find(m_draft.annotations, annotation.id);
        selected.push_back(draft ? *draft : annotation);
    }
    return selected;
}

// Everything that a draft changes of what is seen. View space.
QRectF ScreenshotCanvasView::extentOf(const CanvasDraft &draft) const {
    QRectF image = draft.movedBounds;
    for (const ScreenshotAnnotation &annotation : draft.annotations) {
        if (draft.movedBy)
            break;
        image |= annotation.bounds();
        if (annotation.bendPoint)
            image |= QRectF(annotation.bendPoint->toPointF(), QSizeF(1, 1));
    }
    QRectF view = image.isEmpty() ? QRectF() : m_viewport.toView(image);
    for (const QLineF &guide : draft.guides)
        view |= grown(QRectF(m_viewport.toView(guide.p1()), m_viewport.toView(guide.p2())).normalized(), 2);
    if (draft.band)
        view |= m_viewport.toView(*draft.band);
    for (const QRectF &word : draft.words)
        view |= m_viewport.toView(word);
    return view.isEmpty() ? view : grown(view, CanvasDecorations::reach);
}

const ScreenshotAnnotation *ScreenshotCanvasView::known(const QUuid &id) const {
    return annotationEditing::find(m_document->annotations(), id);
}

// Where those were that a draft shows elsewhere.
QRectF ScreenshotCanvasView::replacedExtent(const CanvasDraft &draft) const {
    if (draft.movedBy)
        return grown(m_viewport.toView(draft.movedBounds.translated(-*draft.movedBy)),
                     CanvasDecorations::reach);
    QRectF extent;
    for (const ScreenshotAnnotation &replaced : draft.annotations) {
        if (const auto *before = known(replaced.id))
            extent |= grown(m_viewport.toView(before->bounds()), CanvasDecorations::reach);
    }
    return extent;
}

void ScreenshotCanvasView::setDraft(CanvasDraft draft) {
    if (draft == m_draft)
        return;
    // What is selected by a band may lie anywhere.
    const bool isLocal = draft.selection == m_draft.selection;
    QRectF extent = extentOf(m_draft) | extentOf(draft);
    if (m_draft.annotations.empty())
        extent |= replacedExtent(draft);
    m_draft = std::move(draft);
    if (isLocal)
        update(extent.toAlignedRect());
    else
        update();
}

} // namespace tembra
