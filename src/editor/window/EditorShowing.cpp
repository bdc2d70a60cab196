// What the editor's window shows.

#include "base/Background.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorNameField.h"
#include "editor/chrome/EditorPalette.h"
#include "editor/chrome/EditorSidebar.h"
#include "editor/chrome/EditorZoomControl.h"
#include "editor/window/EditorControlsState.h"
#include "editor/window/EditorQuestions.h"
#include "editor/window/ScreenshotEditorWindow.h"
#include "editor/window/ScreenshotEditorWindowController.h"

#include <QColorDialog>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

QString nameOf(EditorTool tool) {
    static constexpr std::array names{"select",    "arrow",   "pencil", "crop",   "line",
                                      "rectangle", "ellipse", "text",   "number", "blur"};
    return QString::fromLatin1(names[static_cast<std::size_t>(tool)]);
}

// What is kept of an image to be shown at once when it is shown again.
double keptScale(QSize size) {
    constexpr double side = 1'280;
    return side / std::max({size.width(), size.height(), 1});
}

QString nameOf(EditorWordRecognition::State state) {
    static constexpr std::array names{"idle", "loading", "ready", "failed"};
    return QString::fromLatin1(names[static_cast<std::size_t>(state)]);
}

} // namespace

void ScreenshotEditorWindowController::currentChanged() {
    m_imageGeneration.advance();
    m_wordsOf = EditorDocumentId::none;
    // Half a name is not that of another file.
    m_window->header().nameField().cancelEditing();
    say({});
    EditorDocument *document = m_documents->current();
    if (!document) {
        m_window->canvas().setDocument(nullptr, nullptr);
        m_window->setWindowTitle(QStringLiteral("Tembra[*]"));
        return refresh();
    }
    document->edits.onChange = [this] { m_window->canvas().documentChanged(); };
    m_window->canvas().setDocument(&document->edits,
                                   std::make_shared<ImagePyramid>(document->image, document->loaded.size));
    refresh();
    refreshSidebar();
    seekWords();
}

// The smaller levels take longer to make than a frame may.
void ScreenshotEditorWindowController::showFullImage(const QImage &image) {
    const QSize size = m_documents->current()->loaded.size;
    performInBackground(
        m_services.documents.images, m_services.documents.scheduler, m_imageGeneration.ticket(),
        [image, size] { return std::make_shared<const ImagePyramid>(image, size); },
        [this, size](const std::shared_ptr<const ImagePyramid> &pyramid) {
            EditorDocument *document = m_documents->current();
            if (!document || pyramid->isNull())
                return;
            // One copy of the pixels is enough.
            document->image = pyramid->level(1).image;
            document->loaded.preview = pyramid->level(keptScale(size)).image;
            m_window->canvas().setImage(pyramid);
        });
}

void ScreenshotEditorWindowController::refresh() {
    if (!m_window)
        return;
    const ScreenshotCanvasView &canvas = m_window->canvas();
    EditorHeaderState header = editorHeaderState(m_documents->current());
    header.isSaving = m_documents->current() && m_saving.contains(m_documents->current()->id);
    // What is typed is saved too.
    header.canSave = header.canSave || canvas.isTyping();
    m_window->header().apply(header);
    m_window->zoomControl().setZoom(canvas.viewport().scale(), canvas.viewport().isFit());
    m_window->placeOverlays();
    m_window->dock().setEnabled(m_documents->current() != nullptr);
    if (const EditorDocument *document = m_documents->current())
        m_window->setWindowTitle(document->fileName() + QStringLiteral("[*]"));
    m_window->setWindowModified(header.isDirty);
    if (std::exchange(m_isShownDirty, header.isDirty) != header.isDirty)
        refreshSidebar();
    seekWords();
    refreshNotice();
}

void ScreenshotEditorWindowController::refreshNotice() {
    EditorDockState state = editorDockState(m_window->canvas());
    using State = EditorWordRecognition::State;
    const bool wantsWords = state.blurMode == BlurMode::text;
    if (wantsWords && m_words->state() == State::loading) {
        state.notice = tr("Looking for words…");
        state.isBusy = true;
    } else if (wantsWords && m_words->state() == State::ready && m_words->regions().empty()) {
        state.notice = tr("There are no words in this screenshot.");
    }
    m_window->dock().apply(state);
}

void ScreenshotEditorWindowController::refreshSidebar() {
    if (!m_window)
        return;
    const std::vector<EditorUnsavedDocument> unsaved = m_documents->unsavedDocuments();
    std::vector<EditorSidebarItem> items;
    for (const Shot &shot : m_hooks.shots()) {
        const auto isThis = [&shot](const EditorUnsavedDocument &one) {
            return one.shot.identity == shot.identity || one.shot.location == shot.location;
        };
        items.push_back({.path = shot.location,
                         .name = QFileInfo(shot.location).fileName(),
                         .revision = shot.stamp,
                         .isEdited = m_hooks.isEdited(shot),
                         .isUnsaved = std::ranges::any_of(unsaved, isThis)});
    }
    m_window->sidebar().setVisible(!items.empty());
    m_window->sidebar().apply(std::move(items));
    m_window->sidebar().setCurrent(m_documents->current() ? m_documents->current()->loaded.path : QString());
}

void ScreenshotEditorWindowController::shotsChanged() {
    if (!m_window)
        return;
    refreshSidebar();
    m_documents->checkFile();
}

void ScreenshotEditorWindowController::say(const QString &text) {
    m_tellsOfFile = false;
    if (text.isEmpty())
        m_window->banner().dismiss();
    else
        m_window->banner().present({.text = text});
}

bool ScreenshotEditorWindowController::isShown(EditorDocumentId document) const {
    return m_window && m_documents->current() && m_documents->current()->id == document;
}

void ScreenshotEditorWindowController::showFailure(const EditorFailure &failure) {
    using Offer = EditorFailure::Offer;
    EditorBannerMessage message{.text = failure.error.message, .isError = true};
    const EditorDocument *shown = m_documents->current();
    // Another screenshot is meant than the one that is seen.
    if (shown && shown->id != failure.document && !failure.fileName.isEmpty())
        message.text = tr("“%1”: %2").arg(failure.fileName, failure.error.message);
    switch (failure.offer) {
    case Offer::none:
        break;
    case Offer::copyAsNew:
        message.actions = {{tr("Make a copy"), [this] { m_documents->copyAsNew(); }}};
        break;
    case Offer::saveCopy:
        message.actions = {{tr("Save a copy"), [this, id = failure.document] { saveCopy(id); }}};
        break;
    case Offer::keepBoth:
        message.actions = {{tr("Keep both"), [this, id = failure.document, name = failure.wantedName] {
                                m_documents->renameKeepingBoth(id, name);
                            }}};
        break;
    }
    m_tellsOfFile = false;
    m_window->banner().present(message);
    refresh();
    // The one that was chosen may not be the one that is shown.
    refreshSidebar();
}

void ScreenshotEditorWindowController::showChangedOutside(bool canReload) {
    const EditorDocumentId id = m_documents->current()->id;
    const EditorBannerMessage::Action reloading{tr("Reload"), [this, id] { reload(id); }};
    EditorBannerMessage message{.text = tr("Another program changed this screenshot."),
                                .actions = {reloading}};
    if (!canReload) {
        message.text =
            tr("Another program changed this screenshot. Your edits are still here. Save a copy to "
               "keep them.");
        message.actions = {{tr("Save a copy"), [this, id] { saveCopy(id); }}, reloading};
    }
    m_window->banner().present(message);
    m_tellsOfFile = true;
}

// What was edited since the banner came is asked about.
void ScreenshotEditorWindowController::reload(EditorDocumentId document) {
    m_window->canvas().finishTyping();
    if (!isShown(document))
        return;
    if (!m_documents->current()->edits.isDirty())
        return m_documents->reload();
    EditorQuestions::askToReload(*m_window, m_documents->current()->fileName(), [this, document] {
        if (isShown(document))
            m_documents->reload();
    });
}

// The palette's, then the custom one, then a new custom one.
void ScreenshotEditorWindowController::chooseColor(int number) {
    const auto palette = editorPalette();
    const auto index = static_cast<std::size_t>(number - 1);
    if (index < palette.size())
        m_window->canvas().restyle({.color = palette[index].color});
    else if (index == palette.size() && m_customColor)
        m_window->canvas().restyle({.color = m_customColor});
    else
        chooseCustomColor();
}

void ScreenshotEditorWindowController::chooseCustomColor() {
    const EditorDockState state = editorDockState(m_window->canvas());
    auto *dialog = new QColorDialog(state.color.value_or(EditorColor{1, 0, 0, 1}).toColor(), m_window.get());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor &color) {
        m_customColor = EditorColor::from(color);
        if (m_window)
            m_window->canvas().restyle({.color = m_customColor});
    });
    dialog->open();
}

EditorStatus ScreenshotEditorWindowController::status() const {
    EditorStatus status{.isOpen = isOpen()};
    if (!m_window)
        return status;
    const ScreenshotCanvasView &canvas = m_window->canvas();
    const QPointF corner = canvas.viewport().toView(QPointF());
    const QPointF place = canvas.mapTo(m_window.get(), corner);
    status.frame = m_window->geometry();
    status.isTyping = canvas.isTyping();
    status.tool = nameOf(canvas.tool());
    status.zoom = canvas.viewport().scale();
    status.imageX = place.x();
    status.imageY = place.y();
    status.message = m_window->banner().isHidden() ? QString() : m_window->banner().text();
    status.words = nameOf(m_words->state());
    status.wordCount = static_cast<int>(m_words->regions().size());
    status.isBusy = m_documents->isOpening() || !m_saving.empty();
    for (const EditorUnsavedDocument &unsaved : m_documents->unsavedDocuments())
        status.unsaved += unsaved.shot.location;
    if (EditorDocument *document = m_documents->current()) {
        const EditorHeaderState header = editorHeaderState(document);
        status.undoName = header.undoName;
        status.redoName = header.redoName;
        status.path = document->loaded.path;
        status.isDirty = document->edits.isDirty();
        status.annotationCount = static_cast<int>(document->edits.annotations().size());
        status.selectedCount = static_cast<int>(document->edits.selectedIDs().size());
        status.hasFullImage = document->hasFullImage();
    }
    return status;
}

} // namespace tembra
