// What keys and menus do on the canvas.

#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/CanvasTextEditor.h"
#include "editor/canvas/DrawingGesture.h"
#include "editor/canvas/EditorCropOverlay.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/canvas/ToolKeys.h"

#include <QKeyEvent>
#include <QUndoStack>

namespace tembra {

namespace {

constexpr double keyZoom = 1.25;
constexpr double panStep = 60;

bool isReturn(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

void ScreenshotCanvasView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat() && !m_gesture) {
        holdSpace(true);
        setCursor(Qt::OpenHandCursor);
        return;
    }
    if (!handleKey(*event))
        QWidget::keyPressEvent(event);
}

// Whoever has the focus then is told of the release.
void ScreenshotCanvasView::focusOutEvent(QFocusEvent *event) {
    holdSpace(false);
    QWidget::focusOutEvent(event);
}

// While it is held the view is taken hold of, whatever lies over it.
void ScreenshotCanvasView::holdSpace(bool isHeld) {
    m_isSpaceHeld = isHeld;
    if (m_cropOverlay)
        m_cropOverlay->setAttribute(Qt::WA_TransparentForMouseEvents, isHeld);
}

void ScreenshotCanvasView::keyReleaseEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat() && m_isSpaceHeld) {
        holdSpace(false);
        return updateHover(mapFromGlobal(QCursor::pos()));
    }
    // A modifier changes what is being drawn.
    if (m_gesture)
        setDraft(m_gesture->drag(m_viewport.toImage(m_pointer), event->modifiers()));
    QWidget::keyReleaseEvent(event);
}

bool ScreenshotCanvasView::handleKey(const QKeyEvent &event) {
    if (!m_document || isTyping())
        return false;
    if (m_gesture) {
        if (event.key() == Qt::Key_Escape)
            cancelGesture();
        else
            setDraft(m_gesture->drag(m_viewport.toImage(m_pointer), event.modifiers()));
        return true;
    }
    if (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier) {
        redoEdit();
        return true;
    }
    if (event.key() == Qt::Key_Equal && event.modifiers() == Qt::ControlModifier) {
        zoomIn();
        return true;
    }
    if (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier))
        return false;
    return handleArrow(event) || handlePlainKey(event);
}

bool ScreenshotCanvasView::handleArrow(const QKeyEvent &event) {
    const double step = event.modifiers() & Qt::ShiftModifier ? 10 : 1;
    QPointF delta;
    switch (event.key()) {
    case Qt::Key_Left:
        delta = {-step, 0};
        break;
    case Qt::Key_Right:
        delta = {step, 0};
        break;
    case Qt::Key_Up:
        delta = {0, -step};
        break;
    case Qt::Key_Down:
        delta = {0, step};
        break;
    default:
        return false;
    }
    if (m_cropSession)
        return false;
    if (m_document->selectedIDs().isEmpty()) {
        if (!m_viewport.isFit()) {
            m_viewport.pan(-delta / step * panStep);
            viewportChanged();
        }
    } else if (event.modifiers() & Qt::AltModifier) {
        commands().grow(delta);
    } else {
        commands().nudge(delta);
    }
    return true;
}

bool ScreenshotCanvasView::handlePlainKey(const QKeyEvent &event) {
    const int key = event.key();
    if (event.modifiers() & Qt::AltModifier)
        return false;
    if (const auto choice = toolForKey(key)) {
        if (choice->blurMode)
            setBlurMode(*choice->blurMode);
        setTool(choice->tool);
        return true;
    }
    if (m_cropSession)
        return handleCropKey(key);
    if (key >= Qt::Key_1 && key <= Qt::Key_9) {
        Q_EMIT colorChosen(key - Qt::Key_0);
        return true;
    }
    if (key == Qt::Key_BracketLeft || key == Qt::Key_BracketRight) {
        restyle({.sizeSteps = key == Qt::Key_BracketLeft ? -1 : 1});
        return true;
    }
    if (key == Qt::Key_Escape) {
        cancelStep();
        return true;
    }
    if (isReturn(key)) {
        drawOrType();
        return true;
    }
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
        deleteSelected();
        return true;
    }
    return handleOrderKey(key);
}

// What the overlay does when it has the focus itself.
bool ScreenshotCanvasView::handleCropKey(int key) {
    if (key == Qt::Key_Escape)
        cancelCrop();
    else if (isReturn(key))
        applyCrop();
    else
        return false;
    return true;
}

bool ScreenshotCanvasView::handleOrderKey(int key) {
    using Order = AnnotationCommands::Order;
    switch (key) {
    case Qt::Key_PageUp:
        commands().order(Order::forward);
        return true;
    case Qt::Key_PageDown:
        commands().order(Order::backward);
        return true;
    case Qt::Key_Home:
        commands().order(Order::front);
        return true;
    case Qt::Key_End:
        commands().order(Order::back);
        return true;
    default:
        return false;
    }
}

// Each Escape gives up one thing more.
void ScreenshotCanvasView::cancelStep() {
    if (m_tool != EditorTool::select)
        setTool(EditorTool::select);
    else
        m_document->setSelectedIDs({});
}

void ScreenshotCanvasView::drawOrType() {
    if (!m_document || isTyping() || m_cropSession)
        return;
    const auto selected = m_document->selectedAnnotations();
    if (selected.size() == 1 && selected.front().text)
        typeText(selected.front());
    else if (annotationKind(m_tool))
        placeInMiddle();
}

// Without a pointer: in the middle of what is seen, to be moved by the keys.
void ScreenshotCanvasView::placeInMiddle() {
    using Kind = ScreenshotAnnotation::Kind;
    const Kind kind = *annotationKind(m_tool);
    const QRectF limits = m_viewport.content();
    const QRectF seen = m_viewport.toImage(QRectF(rect())) & limits;
    const QPointF middle = seen.center().toPoint();
    const QPointF half = QPointF(seen.width() / 8, seen.height() / 8).toPoint();
    if (kind == Kind::text)
        return typeNewText(middle);
    if (kind == Kind::number)
        m_gesture = placingNumber();
    else
        m_gesture = std::make_unique<DrawingGesture>(prototype(kind), middle - half, limits, 0);
    if (!m_gesture)
        return;
    m_draft = m_gesture->drag(kind == Kind::number ? middle : middle + half, {});
    finishGesture();
}

bool ScreenshotCanvasView::focusNextPrevChild(bool next) {
    // It asks for its editor too.
    if (isTyping()) {
        finishTyping();
        setFocus();
        return true;
    }
    if (m_document && !m_cropSession && commands().selectNext(!next)) {
        const auto selected = m_document->selectedAnnotations();
        m_viewport.reveal(selected.front().bounds());
        viewportChanged();
        return true;
    }
    if (m_document)
        m_document->setSelectedIDs({});
    return QWidget::focusNextPrevChild(next);
}

void ScreenshotCanvasView::undoEdit() {
    if (!m_document)
        return;
    // What is not done yet is not done; what is typed has its own undo.
    if (m_gesture)
        return cancelGesture();
    if (m_textEditor)
        return m_textEditor->undo();
    if (!m_cropSession)
        m_document->history().undo();
}

void ScreenshotCanvasView::redoEdit() {
    if (!m_document || m_gesture)
        return;
    if (m_textEditor)
        return m_textEditor->redo();
    if (!m_cropSession)
        m_document->history().redo();
}

void ScreenshotCanvasView::cut() {
    if (!m_document || m_document->selectedIDs().isEmpty())
        return;
    if (const auto done = commands().cut(m_pasteboard); !done)
        Q_EMIT failed(done.error().message);
}

void ScreenshotCanvasView::copy() {
    if (!m_document || m_document->selectedIDs().isEmpty())
        return;
    if (const auto done = commands().copy(m_pasteboard); !done)
        Q_EMIT failed(done.error().message);
}

void ScreenshotCanvasView::paste() {
    if (!m_document || m_cropSession)
        return;
    finishTyping();
    if (!commands().canPaste(m_pasteboard)) {
        tellNumbersEnd();
        return;
    }
    const QRectF seen = m_viewport.toImage(QRectF(rect())) & m_viewport.content();
    if (commands().paste(m_pasteboard, seen.center()))
        setTool(EditorTool::select);
}

void ScreenshotCanvasView::selectAll() {
    if (!m_document || m_cropSession)
        return;
    setTool(EditorTool::select);
    commands().selectAll();
}

void ScreenshotCanvasView::duplicateObject() {
    if (!m_document)
        return;
    if (m_document->canNumberCopies(m_document->selectedAnnotations()))
        commands().duplicate();
    else
        tellNumbersEnd();
}

void ScreenshotCanvasView::deleteSelected() {
    if (m_document)
        m_document->deleteSelection();
}

void ScreenshotCanvasView::zoomIn() {
    zoomBy(keyZoom, m_viewport.center());
}

void ScreenshotCanvasView::zoomOut() {
    zoomBy(1 / keyZoom, m_viewport.center());
}

void ScreenshotCanvasView::fitToWindow() {
    m_viewport.fit();
    viewportChanged();
}

void ScreenshotCanvasView::actualSize() {
    m_viewport.setScale(1, m_viewport.center());
    viewportChanged();
}

} // namespace tembra
