// What the pointer does on the canvas.

#include "controls/ShelfMenu.h"
#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/BandGesture.h"
#include "editor/canvas/CanvasTextEditor.h"
#include "editor/canvas/DrawingGesture.h"
#include "editor/canvas/EditorCropOverlay.h"
#include "editor/canvas/HandleCursors.h"
#include "editor/canvas/MovingGesture.h"
#include "editor/canvas/PencilGesture.h"
#include "editor/canvas/PlacingGesture.h"
#include "editor/canvas/PointGesture.h"
#include "editor/canvas/ResizingGesture.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/canvas/WordAreas.h"
#include "editor/canvas/WordsGesture.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// In points of the view.
constexpr double leastDrawn = 4;
constexpr double strokeSpacing = 1.5;
constexpr double alignmentTolerance = 6;
constexpr double wordTolerance = 3;
// For a notch of the wheel.
constexpr double wheelZoom = 1.2;

Qt::CursorShape cursorOver(const CanvasTarget &target) {
    if (!target.handle)
        return Qt::SizeAllCursor;
    return target.handle->isOfRect ? cursorOfRectHandle(target.handle->index) : Qt::PointingHandCursor;
}

Qt::CursorShape cursorOf(EditorTool tool) {
    switch (tool) {
    case EditorTool::select:
    case EditorTool::crop:
        return Qt::ArrowCursor;
    case EditorTool::text:
        return Qt::IBeamCursor;
    default:
        return Qt::CrossCursor;
    }
}

} // namespace

std::optional<CanvasTarget> ScreenshotCanvasView::targetAt(QPointF view) const {
    if (!m_document)
        return std::nullopt;
    const auto target = CanvasTarget::at(m_viewport.toImage(view), m_document->annotations(),
                                         m_document->selectedIDs(), m_viewport.zoom());
    if (!target || m_tool == EditorTool::select || target->handle)
        return target;
    // A tool that draws takes hold of nothing but what is selected; the text tool of texts.
    const bool isText = m_tool == EditorTool::text && known(target->id)->kind == Kind::text;
    const bool isSelected = m_document->selectedIDs().contains(target->id) && m_tool != EditorTool::pencil;
    return isText || isSelected ? target : std::nullopt;
}

void ScreenshotCanvasView::mousePressEvent(QMouseEvent *event) {
    setFocus(Qt::MouseFocusReason);
    m_pointer = event->position();
    if (!m_document || m_gesture || m_panFrom)
        return;
    const bool pans =
        event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_isSpaceHeld);
    if (pans)
        return beginPan(event->position());
    if (event->button() != Qt::LeftButton)
        return;
    const bool wasTyping = isTyping();
    finishTyping();
    // The press beside a text that was typed has ended the typing, and begins no other text.
    if (m_cropSession || (wasTyping && m_tool == EditorTool::text))
        return;
    const QPointF image = m_viewport.toImage(event->position());
    m_gesture = gestureFor(image, event->modifiers());
    if (m_gesture && dynamic_cast<BandGesture *>(m_gesture.get()) == nullptr)
        setDraft(m_gesture->drag(image, event->modifiers()));
}

std::unique_ptr<CanvasGesture> ScreenshotCanvasView::gestureFor(QPointF image,
                                                                Qt::KeyboardModifiers modifiers) {
    const auto target = targetAt(m_viewport.toView(image));
    if (target && m_tool == EditorTool::text && !target->handle) {
        typeText(*known(target->id));
        return nullptr;
    }
    if (target)
        return takingHold(*target, image, modifiers);
    if (m_tool == EditorTool::select)
        return selecting(image, modifiers);
    m_document->setSelectedIDs({});
    if (m_tool == EditorTool::text) {
        typeNewText(image);
        return nullptr;
    }
    return drawing(image);
}

std::unique_ptr<CanvasGesture> ScreenshotCanvasView::takingHold(const CanvasTarget &target, QPointF image,
                                                                Qt::KeyboardModifiers modifiers) {
    const QRectF limits = m_viewport.content();
    const double tolerance = alignmentTolerance / m_viewport.zoom();
    if (target.handle) {
        const auto selected = m_document->selectedAnnotations().front();
        if (target.handle->isOfRect)
            return std::make_unique<ResizingGesture>(
                selected, target.handle->index, image,
                ResizingGesture::Surroundings{limits, alignmentTargets({selected.id}), tolerance});
        return std::make_unique<PointGesture>(selected, static_cast<std::size_t>(target.handle->index), image,
                                              limits, tolerance);
    }
    QSet<QUuid> ids = m_document->selectedIDs();
    if (modifiers & Qt::ShiftModifier && m_tool == EditorTool::select) {
        if (!ids.remove(target.id))
            ids.insert(target.id);
        m_document->setSelectedIDs(ids);
        return nullptr;
    }
    if (!ids.contains(target.id))
        m_document->setSelectedIDs({target.id});
    std::vector<ScreenshotAnnotation> moving = m_document->selectedAnnotations();
    const bool copies = modifiers & Qt::AltModifier;
    if (copies && !m_document->canNumberCopies(moving)) {
        tellNumbersEnd();
        return nullptr;
    }
    if (copies)
        moving = m_document->numberedCopies(moving);
    const QSet<QUuid> apart = copies ? QSet<QUuid>() : m_document->selectedIDs();
    return std::make_unique<MovingGesture>(
        std::move(moving), image, MovingGesture::Surroundings{limits, alignmentTargets(apart), tolerance},
        copies);
}

std::unique_ptr<CanvasGesture> ScreenshotCanvasView::selecting(QPointF image,
                                                               Qt::KeyboardModifiers modifiers) {
    const bool adds = modifiers & (Qt::ShiftModifier | Qt::ControlModifier);
    const QSet<QUuid> base = adds ? m_document->selectedIDs() : QSet<QUuid>();
    m_document->setSelectedIDs(base);
    return std::make_unique<BandGesture>(m_document->annotations(), image, base);
}

std::unique_ptr<CanvasGesture> ScreenshotCanvasView::drawing(QPointF image) {
    const auto kind = annotationKind(m_tool);
    const QRectF limits = m_viewport.content();
    const double zoom = m_viewport.zoom();
    if (!kind)
        return nullptr;
    switch (*kind) {
    case Kind::pencil:
        return std::make_unique<PencilGesture>(prototype(*kind), image, limits, strokeSpacing / zoom);
    case Kind::number:
        return placingNumber();
    case Kind::blur:
        if (m_blurMode == BlurMode::text)
            return std::make_unique<WordsGesture>(prototype(*kind), image, m_words, limits,
                                                  wordTolerance / zoom);
        [[fallthrough]];
    default:
        return std::make_unique<DrawingGesture>(prototype(*kind), image, limits, leastDrawn / zoom);
    }
}

std::unique_ptr<CanvasGesture> ScreenshotCanvasView::placingNumber() {
    ScreenshotAnnotation number = prototype(Kind::number);
    if (number.number->value > EditorNumber::largest) {
        tellNumbersEnd();
        return nullptr;
    }
    return std::make_unique<PlacingGesture>(std::move(number), m_viewport.content());
}

// What something that is moved comes into line with.
std::vector<QRectF> ScreenshotCanvasView::alignmentTargets(const QSet<QUuid> &moving) const {
    std::vector<QRectF> targets{m_viewport.content()};
    for (const ScreenshotAnnotation &annotation : m_document->annotations()) {
        const bool isTarget = annotation.kind != Kind::pencil && annotation.kind != Kind::arrow;
        if (isTarget && !moving.contains(annotation.id))
            targets.push_back(annotationEditing::alignmentRect(annotation));
    }
    return targets;
}

void ScreenshotCanvasView::mouseMoveEvent(QMouseEvent *event) {
    m_pointer = event->position();
    // The release went to somebody else.
    if (event->buttons() == Qt::NoButton) {
        m_panFrom.reset();
        cancelGesture();
    }
    if (m_panFrom) {
        const QPointF way = event->position() - std::exchange(*m_panFrom, event->position());
        // What is seen whole has nowhere to go.
        if (m_viewport.isFit())
            return;
        m_viewport.pan(way);
        return viewportChanged();
    }
    if (!m_gesture)
        return updateHover(event->position());
    setDraft(m_gesture->drag(m_viewport.toImage(event->position()), event->modifiers()));
}

void ScreenshotCanvasView::mouseReleaseEvent(QMouseEvent *event) {
    if (m_panFrom) {
        m_panFrom.reset();
        return updateHover(event->position());
    }
    if (!m_gesture || event->button() != Qt::LeftButton)
        return;
    setDraft(m_gesture->drag(m_viewport.toImage(event->position()), event->modifiers()));
    finishGesture();
    updateHover(event->position());
}

void ScreenshotCanvasView::finishGesture() {
    const std::unique_ptr<CanvasGesture> gesture = std::move(m_gesture);
    const CanvasDraft draft = m_draft;
    m_layers.endDraft();
    if (draft.selection)
        m_document->setSelectedIDs(*draft.selection);
    if (!draft.annotations.empty()) {
        const auto &last = draft.annotations.back();
        if (m_tool == EditorTool::number && m_nextNumber && last.number && !known(last.id))
            m_nextNumber = last.number->value == -1 ? 1 : last.number->value + 1;
        commands().put(draft.annotations, gesture->actionName());
    }
    setDraft({});
    QSet<QUuid> ids;
    for (const ScreenshotAnnotation &annotation : draft.annotations)
        ids.insert(annotation.id);
    if (!ids.isEmpty() && gesture->selects())
        m_document->setSelectedIDs(ids);
    update();
}

void ScreenshotCanvasView::cancelGesture() {
    if (!m_gesture)
        return;
    m_gesture.reset();
    m_draft = {};
    m_layers.endDraft();
    update();
}

void ScreenshotCanvasView::mouseDoubleClickEvent(QMouseEvent *event) {
    const auto target = targetAt(event->position());
    if (event->button() == Qt::LeftButton && target && !target->handle && m_tool == EditorTool::select) {
        if (const ScreenshotAnnotation *annotation = known(target->id); annotation->text)
            return typeText(*annotation);
    }
    mousePressEvent(event);
}

void ScreenshotCanvasView::updateHover(QPointF view) {
    const bool seeksWords = m_tool == EditorTool::blur && m_blurMode == BlurMode::text && m_document;
    const auto target = targetAt(view);
    std::optional<QRectF> word;
    if (seeksWords && !target)
        word = WordAreas::wordAt(m_viewport.toImage(view), m_words, wordTolerance / m_viewport.zoom());
    if (word != m_hoveredWord) {
        m_hoveredWord = word;
        update();
    }
    if (m_panFrom || m_isSpaceHeld)
        setCursor(m_panFrom ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else if (target)
        setCursor(m_tool == EditorTool::text && !target->handle ? Qt::IBeamCursor : cursorOver(*target));
    else if (seeksWords)
        setCursor(word ? Qt::PointingHandCursor : Qt::ArrowCursor);
    else
        setCursor(cursorOf(m_tool));
}

void ScreenshotCanvasView::leaveEvent(QEvent *) {
    if (m_hoveredWord) {
        m_hoveredWord.reset();
        update();
    }
}

void ScreenshotCanvasView::beginPan(QPointF view) {
    m_panFrom = view;
    setCursor(Qt::ClosedHandCursor);
}

void ScreenshotCanvasView::wheelEvent(QWheelEvent *event) {
    if (!m_document)
        return;
    if (event->modifiers() & Qt::ControlModifier) {
        const double notches = event->angleDelta().y() / 120.0;
        return zoomBy(std::pow(wheelZoom, notches), event->position());
    }
    QPointF delta = event->hasPixelDelta() ? QPointF(event->pixelDelta()) : QPointF(event->angleDelta()) / 2;
    if (event->modifiers() & Qt::ShiftModifier)
        delta = delta.transposed();
    // What is seen whole has nowhere to go.
    if (m_viewport.isFit())
        return;
    m_viewport.pan(delta);
    viewportChanged();
}

void ScreenshotCanvasView::zoomBy(double factor, QPointF anchor) {
    m_viewport.setScale(m_viewport.scale() * factor, anchor);
    viewportChanged();
}

bool ScreenshotCanvasView::event(QEvent *event) {
    const bool isPinch = event->type() == QEvent::Gesture || event->type() == QEvent::NativeGesture;
    return (isPinch && m_document && pinch(*event)) || QWidget::event(event);
}

bool ScreenshotCanvasView::pinch(const QEvent &event) {
    if (event.type() == QEvent::NativeGesture) {
        const auto &native = static_cast<const QNativeGestureEvent &>(event);
        if (native.gestureType() != Qt::ZoomNativeGesture)
            return false;
        zoomBy(1 + native.value(), native.position());
        return true;
    }
    const auto &gestures = static_cast<const QGestureEvent &>(event);
    const auto *gesture = static_cast<QPinchGesture *>(gestures.gesture(Qt::PinchGesture));
    if (!gesture)
        return false;
    zoomBy(gesture->scaleFactor(), mapFromGlobal(gesture->centerPoint()));
    return true;
}

void ScreenshotCanvasView::contextMenuEvent(QContextMenuEvent *event) {
    if (!m_document || m_gesture || m_cropSession)
        return;
    finishTyping();
    if (const auto target = targetAt(event->pos()); target && !m_document->selectedIDs().contains(target->id))
        m_document->setSelectedIDs({target->id});
    auto *menu = new ShelfMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool hasSelection = !m_document->selectedIDs().isEmpty();
    const auto add = [&](const QString &title, bool isEnabled, auto action) {
        menu->add(title, isEnabled ? std::function<void()>(action) : nullptr);
    };
    using Order = AnnotationCommands::Order;
    const auto order = [this](Order to) {
        if (m_document)
            commands().order(to);
    };
    add(tr("Cut"), hasSelection, [this] { cut(); });
    add(tr("Copy"), hasSelection, [this] { copy(); });
    add(tr("Paste"), true, [this] { paste(); });
    add(tr("Duplicate"), hasSelection, [this] { duplicateObject(); });
    add(tr("Delete"), hasSelection, [this] { deleteSelected(); });
    menu->addSeparator();
    add(tr("Bring to front"), hasSelection, [order] { order(Order::front); });
    add(tr("Bring forward"), hasSelection, [order] { order(Order::forward); });
    add(tr("Send backward"), hasSelection, [order] { order(Order::backward); });
    add(tr("Send to back"), hasSelection, [order] { order(Order::back); });
    menu->popup(event->globalPos());
}

} // namespace tembra
