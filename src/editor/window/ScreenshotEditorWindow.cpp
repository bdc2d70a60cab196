#include "editor/window/ScreenshotEditorWindow.h"

#include "controls/ProgramIcon.h"
#include "controls/Theme.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorOverlays.h"
#include "editor/chrome/EditorSidebar.h"
#include "editor/chrome/EditorZoomControl.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tembra {

ScreenshotEditorWindow::ScreenshotEditorWindow(UserDefaults &defaults, Pasteboard &pasteboard,
                                               Thumbnails &thumbnails, Scheduler &scheduler)
    : m_header(new EditorHeader(this)),
      m_banner(new EditorBanner(this)),
      m_sidebar(new EditorSidebar(thumbnails, this)),
      m_canvas(new ScreenshotCanvasView(defaults, pasteboard, scheduler, this)),
      m_dock(new EditorDock(this)),
      m_zoom(new EditorZoomControl(this)) {
    setWindowTitle(QStringLiteral("Tembra[*]"));
    setWindowIcon(programIcon());
    Theme::setAppearance(*this, Appearance::desktop);
    setMinimumSize(smallest);
    layOut();
    m_canvas->installEventFilter(this);
    connect(m_dock, &EditorDock::sizeHintChanged, this, &ScreenshotEditorWindow::placeOverlays);
    m_canvas->setFocus();
}

void ScreenshotEditorWindow::layOut() {
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_header);
    rows->addWidget(m_banner);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(m_sidebar);
    columns->addWidget(m_canvas, 1);
    rows->addLayout(columns, 1);
    m_dock->raise();
    m_zoom->raise();
}

void ScreenshotEditorWindow::placeOverlays() {
    placeEditorOverlays(*m_dock, *m_zoom, m_canvas->geometry());
}

bool ScreenshotEditorWindow::eventFilter(QObject *watched, QEvent *event) {
    const bool isPlaced = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (watched == m_canvas && isPlaced)
        placeOverlays();
    return QWidget::eventFilter(watched, event);
}

void ScreenshotEditorWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    Q_EMIT closeRequested();
}

void ScreenshotEditorWindow::changeEvent(QEvent *event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activated();
    QWidget::changeEvent(event);
}

// What no control wanted is the canvas's: the letters of the tools hold in the whole window.
void ScreenshotEditorWindow::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isOfControl = isReturn || qobject_cast<QLineEdit *>(focusWidget());
    if (isOfControl || !m_canvas->handleKey(*event))
        QWidget::keyPressEvent(event);
}

void ScreenshotEditorWindow::undoEdit() {
    m_canvas->undoEdit();
}

void ScreenshotEditorWindow::redoEdit() {
    m_canvas->redoEdit();
}

void ScreenshotEditorWindow::cut() {
    m_canvas->cut();
}

void ScreenshotEditorWindow::copy() {
    m_canvas->copy();
}

void ScreenshotEditorWindow::paste() {
    m_canvas->paste();
}

void ScreenshotEditorWindow::selectAll() {
    m_canvas->selectAll();
}

void ScreenshotEditorWindow::duplicateObject() {
    m_canvas->duplicateObject();
}

void ScreenshotEditorWindow::zoomInClicked() {
    m_canvas->zoomIn();
}

void ScreenshotEditorWindow::zoomOutClicked() {
    m_canvas->zoomOut();
}

void ScreenshotEditorWindow::fitToWindow() {
    m_canvas->fitToWindow();
}

void ScreenshotEditorWindow::actualSize() {
    m_canvas->actualSize();
}

} // namespace tembra
