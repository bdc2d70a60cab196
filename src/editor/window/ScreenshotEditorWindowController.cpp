#include "editor/window/ScreenshotEditorWindowController.h"

#include "base/MainThread.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorSidebar.h"
#include "editor/chrome/EditorZoomControl.h"
#include "editor/window/EditorQuestions.h"
#include "editor/window/ScreenshotEditorWindow.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tembra {

namespace {

const QString sizeKey = QStringLiteral("editor.windowSize");

QSize rememberedSize(const UserDefaults &defaults) {
    const auto kept = defaults.numberArray(sizeKey);
    const auto isSide = [](double side) { return std::isfinite(side) && side >= 1 && side <= 20'000; };
    if (!kept || kept->size() != 2 || !std::ranges::all_of(*kept, isSide))
        return ScreenshotEditorWindow::usual;
    return QSizeF(kept->at(0), kept->at(1)).toSize();
}

// In the middle of the display, as large as it was and as there is room for.
QRect placeOn(const ScreenRect &display, QSize wanted) {
    const QRect frame = QRectF(display.x, display.y, display.width, display.height).toRect();
    const QScreen *screen = QGuiApplication::screenAt(frame.center());
    QRect room = screen ? screen->availableGeometry() : frame;
    if (room.isEmpty())
        return {QPoint(), wanted};
    room.adjust(12, 12, -12, -12);
    QRect place(
        QPoint(),
        wanted.boundedTo(room.size()).expandedTo(ScreenshotEditorWindow::smallest.boundedTo(room.size())));
    place.moveCenter(room.center());
    return place;
}

} // namespace

ScreenshotEditorWindowController::ScreenshotEditorWindowController(const ScreenshotEditorServices &services,
                                                                   Hooks hooks)
    : m_services(services), m_hooks(std::move(hooks)) {}

ScreenshotEditorWindowController::~ScreenshotEditorWindowController() = default;

void ScreenshotEditorWindowController::open(const Shot &shot, const ScreenRect &display) {
    requireMainThread();
    if (!m_window)
        makeWindow(display);
    m_window->canvas().finishTyping();
    m_documents->open(shot, previewRequest());
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

ScreenshotEditPreviewRequest ScreenshotEditorWindowController::previewRequest() const {
    const QSizeF view = m_window->canvas().size();
    const double scale = m_window->devicePixelRatioF();
    const QSizeF room(view.width() - 2 * CanvasViewport::sideMargin,
                      view.height() - CanvasViewport::sideMargin - CanvasViewport::bottomMargin);
    return {.available = room, .backingScale = scale, .minimumZoom = 0.01, .maximumZoom = 1 / scale};
}

void ScreenshotEditorWindowController::makeWindow(const ScreenRect &display) {
    m_documents = std::make_unique<EditorDocuments>(m_services.documents, m_hooks.documents);
    m_words = std::make_unique<EditorWordRecognition>(m_services.recognizer, m_services.wordQueue,
                                                      m_services.documents.scheduler);
    m_window = std::make_unique<ScreenshotEditorWindow>(
        m_services.defaults, m_services.pasteboard, m_services.thumbnails, m_services.documents.scheduler);
    m_hooks.addMenus(*m_window);
    connectWindow();
    connectCanvas();
    connectDocuments();
    const QRect place = placeOn(display, rememberedSize(m_services.defaults));
    // Also where the desktop's large text leaves little room.
    m_window->setMinimumSize(ScreenshotEditorWindow::smallest.boundedTo(place.size()));
    m_window->setGeometry(place);
    // The preview is asked for in the size that it will be shown in.
    m_window->ensurePolished();
    m_window->layout()->activate();
    refresh();
    refreshSidebar();
    m_hooks.openChanged(true);
}

void ScreenshotEditorWindowController::connectWindow() {
    using Window = ScreenshotEditorWindow;
    const EditorHeader *header = &m_window->header();
    connect(m_window.get(), &Window::saveRequested, this, [this] { save(); });
    connect(m_window.get(), &Window::saveCopyRequested, this, [this] {
        if (m_documents->current())
            saveCopy(m_documents->current()->id);
    });
    connect(m_window.get(), &Window::copyImageRequested, this, [this] { copyImage(); });
    connect(m_window.get(), &Window::closeRequested, this, [this] { close(); });
    connect(m_window.get(), &Window::activated, this, [this] { m_documents->checkFile(); });
    connect(header, &EditorHeader::undoRequested, m_window.get(), &Window::undoEdit);
    connect(header, &EditorHeader::redoRequested, m_window.get(), &Window::redoEdit);
    connect(header, &EditorHeader::saveRequested, m_window.get(), &Window::saveRequested);
    connect(header, &EditorHeader::saveAsRequested, m_window.get(), &Window::saveCopyRequested);
    connect(header, &EditorHeader::copyRequested, m_window.get(), &Window::copyImageRequested);
    connect(header, &EditorHeader::dragRequested, this, [this] { dragImage(); });
    connect(header, &EditorHeader::renameRequested, this, [this](const QString &name) {
        m_documents->rename(name);
        m_window->canvas().setFocus();
    });
    connect(header, &EditorHeader::nameEditingEnded, this, [this] { m_window->canvas().setFocus(); });
    connect(header, &EditorHeader::trashRequested, this, [this] {
        m_window->canvas().finishTyping();
        m_shotsBefore = m_hooks.shots();
        m_documents->moveToTrash();
    });
    connect(header, &EditorHeader::revealRequested, this, [this] {
        if (!m_documents->current())
            return;
        if (const auto shown = m_services.workspace.reveal({m_documents->current()->loaded.path}); !shown)
            say(shown.error().message);
    });
    connect(&m_window->banner(), &EditorBanner::dismissed, this, [this] {
        if (!m_window->focusWidget())
            m_window->canvas().setFocus();
    });
    connect(&m_window->sidebar(), &EditorSidebar::chosen, this,
            [this](const QString &path) { choose(path); });
}

void ScreenshotEditorWindowController::connectCanvas() {
    ScreenshotCanvasView *canvas = &m_window->canvas();
    const EditorDock *dock = &m_window->dock();
    const EditorZoomControl *zoom = &m_window->zoomControl();
    connect(canvas, &ScreenshotCanvasView::changed, this, [this] { refresh(); });
    connect(canvas, &ScreenshotCanvasView::failed, this, [this](const QString &text) { say(text); });
    connect(canvas, &ScreenshotCanvasView::colorChosen, this, [this](int number) { chooseColor(number); });
    connect(dock, &EditorDock::toolChosen, canvas, &ScreenshotCanvasView::setTool);
    connect(dock, &EditorDock::blurModeChosen, canvas, &ScreenshotCanvasView::setBlurMode);
    connect(dock, &EditorDock::styleChanged, canvas, &ScreenshotCanvasView::restyle);
    connect(dock, &EditorDock::toolSizeScrolled, canvas, &ScreenshotCanvasView::stepSize);
    connect(dock, &EditorDock::customColorRequested, this, [this] { chooseCustomColor(); });
    connect(dock, &EditorDock::cropApplied, canvas, &ScreenshotCanvasView::applyCrop);
    connect(dock, &EditorDock::cropCancelled, canvas, &ScreenshotCanvasView::cancelCrop);
    connect(zoom, &EditorZoomControl::zoomInRequested, canvas, &ScreenshotCanvasView::zoomIn);
    connect(zoom, &EditorZoomControl::zoomOutRequested, canvas, &ScreenshotCanvasView::zoomOut);
    connect(zoom, &EditorZoomControl::fitRequested, canvas, &ScreenshotCanvasView::fitToWindow);
    connect(zoom, &EditorZoomControl::zoomRequested, canvas, [canvas](double fraction) {
        canvas->zoomBy(fraction / canvas->viewport().scale(), canvas->viewport().center());
    });
}

void ScreenshotEditorWindowController::connectDocuments() {
    m_documents->onCurrentWillChange = whileOpen([this] { m_window->canvas().finishTyping(); });
    m_documents->onCurrentChanged = whileOpen([this] { currentChanged(); });
    m_documents->onFullImage = whileOpen([this](const QImage &image) { showFullImage(image); });
    m_documents->onStateChanged = whileOpen([this] {
        refresh();
        refreshSidebar();
        continueClosing();
    });
    m_documents->onError = whileOpen([this](const EditorFailure &failure) { showFailure(failure); });
    m_documents->onChangedOutside = whileOpen([this](bool canReload) { showChangedOutside(canReload); });
    m_documents->onFileGone = whileOpen([this] {
        say(tr("This screenshot is no longer in its folder. Save a copy to keep your edits."));
        m_tellsOfFile = true;
    });
    m_documents->onFileRestored = whileOpen([this] {
        if (m_tellsOfFile)
            say({});
    });
    m_documents->onRemoved = whileOpen([this](const Shot &shot) { removed(shot); });
    m_words->onChange = whileOpen([this] { wordsChanged(); });
}

void ScreenshotEditorWindowController::close() {
    m_window->canvas().finishTyping();
    if (m_documents->canClose())
        return endWindow();
    askToClose([this] { endWindow(); });
}

bool ScreenshotEditorWindowController::canTerminate() {
    if (!m_window)
        return true;
    m_window->canvas().finishTyping();
    if (m_documents->canClose()) {
        endWindow();
        return true;
    }
    askToClose([this] {
        endWindow();
        m_hooks.mayTerminate();
    });
    return false;
}

void ScreenshotEditorWindowController::askToClose(const std::function<void()> &closed) {
    m_whenAnswered = closed;
    if (m_isAsking)
        return;
    QStringList names;
    for (const EditorUnsavedDocument &unsaved : m_documents->unsavedDocuments())
        names += unsaved.fileName;
    // What is being written needs no question, only its time.
    if (names.isEmpty())
        return closeWhenIdle(closed);
    m_isAsking = true;
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    const auto answered = [this](EditorQuestions::CloseAnswer answer) {
        m_isAsking = false;
        if (answer != EditorQuestions::CloseAnswer::cancel)
            closeAnswered(answer == EditorQuestions::CloseAnswer::save, m_whenAnswered);
    };
    EditorQuestions::askToClose(*m_window, names, whileOpen(answered));
}

void ScreenshotEditorWindowController::closeAnswered(bool saves, const std::function<void()> &closed) {
    if (!saves) {
        m_documents->discardAll();
        return closeWhenIdle(closed);
    }
    m_documents->saveAll(whileOpen([this, closed](const Result<void> &saved) {
        refresh();
        if (saved)
            closeWhenIdle(closed);
    }));
}

void ScreenshotEditorWindowController::closeWhenIdle(const std::function<void()> &closed) {
    m_closing = closed;
    continueClosing();
}

// Later, as this may be called from what is to go.
void ScreenshotEditorWindowController::continueClosing() {
    if (!m_closing)
        return;
    m_services.documents.scheduler.post(whileOpen([this] {
        if (!m_closing)
            return;
        if (m_documents->canClose())
            std::exchange(m_closing, {})();
        else if (!m_documents->unsavedDocuments().empty())
            askToClose(std::exchange(m_closing, {}));
    }));
}

void ScreenshotEditorWindowController::endWindow() {
    m_imageGeneration.advance();
    m_windowGeneration.advance();
    m_wordsOf = EditorDocumentId::none;
    m_saving.clear();
    m_closing = {};
    m_isAsking = false;
    if (!(m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        m_services.defaults.setNumberArray(sizeKey, {double(m_window->width()), double(m_window->height())});
    // It lives a little longer, and has nobody to tell anything.
    disconnect(m_window.get(), nullptr, this, nullptr);
    for (const QObject *part : m_window->findChildren<QObject *>())
        disconnect(part, nullptr, this, nullptr);
    m_window->canvas().setDocument(nullptr, nullptr);
    m_words->cancel();
    m_window->hide();
    // It may be what called.
    m_window.release()->deleteLater();
    m_services.documents.scheduler.post(
        [documents = std::shared_ptr<EditorDocuments>(std::move(m_documents)),
         words = std::shared_ptr<EditorWordRecognition>(std::move(m_words))] {});
    m_hooks.openChanged(false);
}

} // namespace tembra
