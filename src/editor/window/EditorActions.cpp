// What the editor does with the screenshot that it shows.

#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/window/EditorQuestions.h"
#include "editor/window/ScreenshotEditorWindow.h"
#include "editor/window/ScreenshotEditorWindowController.h"
#include "imaging/Sha256.h"

#include <QDrag>
#include <QFileInfo>
#include <QGuiApplication>
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
    if (!m_documents->current())
        return;
    const EditorDocumentId id = m_documents->current()->id;
    m_saving.insert(id);
    refresh();
    m_documents->save(id, whileOpen([this, id](const Result<void> &saved) {
                          m_saving.erase(id);
                          if (saved && isShown(id))
                              m_window->banner().dismiss();
                          refresh();
                          refreshSidebar();
                      }));
}

// Under the name of the screenshot that is meant, which need not be the one that is seen.
void ScreenshotEditorWindowController::saveCopy(EditorDocumentId document) {
    m_window->canvas().finishTyping();
    QString path;
    if (isShown(document))
        path = m_documents->current()->loaded.path;
    for (const EditorUnsavedDocument &unsaved : m_documents->unsavedDocuments()) {
        if (unsaved.id == document)
            path = unsaved.shot.location;
    }
    if (path.isEmpty())
        return;
    const QFileInfo file(path);
    const QString extension = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const QString name = tr("%1 copy").arg(file.completeBaseName()) + extension;
    const auto save = [this, document](const QString &chosen) {
        m_documents->saveCopy(document, chosen, whileOpen([this](const Result<QString> &saved) {
                                  if (saved)
                                      say(tr("A copy was saved as “%1”.").arg(QFileInfo(*saved).fileName()));
                              }));
    };
    EditorQuestions::askForCopy(*m_window, file.path() + u'/' + name, whileOpen(save));
}

void ScreenshotEditorWindowController::copyImage() {
    m_window->canvas().finishTyping();
    if (m_documents->current())
        m_documents->copyImage();
}

// The picture is rendered while the button is down; a drag that has ended by then is none.
void ScreenshotEditorWindowController::dragImage() {
    m_window->canvas().finishTyping();
    m_documents->dragImage(whileOpen([this](const Result<EditorDraggedImage> &image) {
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
    }));
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
    else
        refreshSidebar();
}

// Once somebody wants to blur words.
void ScreenshotEditorWindowController::seekWords() {
    const ScreenshotCanvasView &canvas = m_window->canvas();
    const EditorDocument *document = m_documents->current();
    const bool areWanted = canvas.tool() == EditorTool::blur && canvas.blurMode() == BlurMode::text;
    if (!document || !areWanted || m_wordsOf == document->id)
        return;
    m_wordsOf = document->id;
    // Another picture under the same record is another one to be read.
    const QUuid id = QUuid::createUuidV5(document->loaded.record.id, sha256Hex(document->loaded.original));
    m_words->start(id, document->loaded.original);
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
