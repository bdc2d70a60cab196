// What the editor does with the screenshot that it shows.

#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/window/EditorQuestions.h"
#include "editor/window/ScreenshotEditorWindow.h"
#include "editor/window/ScreenshotEditorWindowController.h"

#include <QDrag>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tembra {

namespace {

constexpr int dragPictureSide = 160;

} // namespace

void ScreenshotEditorWindowController::save() {
    m_window->canvas().finishTyping();
    if (!m_documents->current() || m_isSaving)
        return;
    m_isSaving = true;
    refresh();
    m_documents->save([this](const Result<void> &saved) {
        m_isSaving = false;
        if (saved)
            m_window->banner().dismiss();
        refresh();
        refreshSidebar();
    });
}

void ScreenshotEditorWindowController::saveCopy(EditorDocumentId document) {
    m_window->canvas().finishTyping();
    const EditorDocument *current = m_documents->current();
    const QString folder = current ? QFileInfo(current->loaded.path).path() : QString();
    const QString name = current ? tr("%1 copy").arg(current->name()) + current->extension() : QString();
    EditorQuestions::askForCopy(*m_window, folder + u'/' + name, [this, document](const QString &path) {
        m_documents->saveCopy(document, path, [this](const Result<QString> &saved) {
            if (saved)
                say(tr("A copy was saved as “%1”.").arg(QFileInfo(*saved).fileName()));
        });
    });
}

void ScreenshotEditorWindowController::copyImage() {
    m_window->canvas().finishTyping();
    if (m_documents->current())
        m_documents->copyImage();
}

// The picture is rendered while the button is down; a drag that has ended by then is none.
void ScreenshotEditorWindowController::dragImage() {
    m_window->canvas().finishTyping();
    m_documents->dragImage([this](const Result<EditorDraggedImage> &image) {
        const bool isStillDown = QGuiApplication::mouseButtons() & Qt::LeftButton;
        if (!image || !isStillDown)
            return;
        auto *data = new QMimeData;
        data->setUrls({QUrl::fromLocalFile(image->file)});
        data->setData(QStringLiteral("image/png"), image->png);
        auto *drag = new QDrag(m_window.get());
        drag->setMimeData(data);
        const QImage picture = QImage::fromData(image->png, "PNG");
        drag->setPixmap(QPixmap::fromImage(
            picture.scaled(dragPictureSide, dragPictureSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
        drag->setHotSpot({drag->pixmap().width() / 2, drag->pixmap().height() / 2});
        drag->exec(Qt::CopyAction);
    });
}

// The one that came after it, or before; without any the window has nothing to show.
void ScreenshotEditorWindowController::removed(const Shot &shot) {
    const std::vector<Shot> left = m_hooks.shots();
    const std::vector<Shot> before = std::exchange(m_shotsBefore, {});
    const auto stands = [&](const Shot &one) {
        return one.identity != shot.identity && one.location != shot.location &&
               std::ranges::find(left, one.location, &Shot::location) != left.end();
    };
    const auto at = std::ranges::find(before, shot.location, &Shot::location);
    auto next = std::find_if(at, before.end(), stands);
    if (next == before.end()) {
        const auto previous = std::find_if(std::make_reverse_iterator(at), before.rend(), stands);
        if (previous == before.rend())
            return close();
        next = std::prev(previous.base());
    }
    m_documents->open(*next, previewRequest());
    refreshSidebar();
}

void ScreenshotEditorWindowController::choose(const QString &path) {
    m_window->canvas().finishTyping();
    const std::vector<Shot> shots = m_hooks.shots();
    const auto found = std::ranges::find(shots, path, &Shot::location);
    if (found != shots.end())
        m_documents->open(*found, previewRequest());
}

// Once somebody wants to blur words.
void ScreenshotEditorWindowController::seekWords() {
    const ScreenshotCanvasView &canvas = m_window->canvas();
    const EditorDocument *document = m_documents->current();
    const bool areWanted = canvas.tool() == EditorTool::blur && canvas.blurMode() == BlurMode::text;
    if (!document || !areWanted || m_wordsOf == document->id)
        return;
    m_wordsOf = document->id;
    m_words->start(document->loaded.record.id, document->loaded.original);
}

void ScreenshotEditorWindowController::wordsChanged() {
    using State = EditorWordRecognition::State;
    ScreenshotCanvasView &canvas = m_window->canvas();
    canvas.setWords(m_words->regions());
    if (m_words->state() == State::failed) {
        // It is tried again when it is asked for again.
        m_wordsOf = EditorDocumentId::none;
        const bool wasWanted = canvas.tool() == EditorTool::blur && canvas.blurMode() == BlurMode::text;
        canvas.setBlurMode(BlurMode::area);
        if (wasWanted)
            say(tr("The words of this screenshot couldn’t be found. Draw the areas to blur instead.") +
                (m_words->error() ? u' ' + m_words->error()->message : QString()));
    }
    refreshNotice();
}

} // namespace tembra
