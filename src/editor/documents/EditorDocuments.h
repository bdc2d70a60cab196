#pragma once

#include "editor/documents/EditorDocumentList.h"
#include "editor/documents/EditorDocumentsHooks.h"
#include "editor/documents/EditorDocumentsServices.h"
#include "editor/documents/EditorExports.h"
#include "editor/documents/EditorFailure.h"
#include "editor/documents/EditorFileChecks.h"
#include "editor/documents/EditorFileTasks.h"
#include "editor/documents/EditorOpening.h"
#include "editor/documents/EditorSaving.h"
#include "editor/documents/EditorUnsavedDocument.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

// The documents of an editor window: opens them, keeps those with unsaved edits when others become current,
// and does everything with their files, in the background and one thing after the other. Shows nothing. Main
// thread; owned by the window's controller, which hangs its callbacks on it; none comes after its end. Any of
// them may begin the next thing; a completion may end this.
class EditorDocuments {
public:
    using Services = EditorDocumentsServices;
    using Hooks = EditorDocumentsHooks;
    using PreviewRequest = ScreenshotEditPreviewRequest;
    using Id = EditorDocumentId;
    using Completion = EditorSaving::Completion;

    EditorDocuments(const Services &services, Hooks hooks);
    EditorDocuments(const EditorDocuments &) = delete;
    EditorDocuments &operator=(const EditorDocuments &) = delete;

    // What is being done to the current document is to be finished now.
    std::function<void()> onCurrentWillChange;
    // Another document is current, or none; the one before is there until this returns.
    std::function<void()> onCurrentChanged;
    // The current document's original in full size, when `image()` was smaller before.
    std::function<void(const QImage &)> onFullImage;
    // Something was saved, renamed, moved or given up: names and what is unsaved may be others.
    std::function<void()> onStateChanged;
    // Whatever fails is told here, and to the completion too where there is one.
    std::function<void(const EditorFailure &)> onError;
    // Another program wrote the current document's file, each time it does. Without edits it can be reloaded
    // and nothing is lost.
    std::function<void(bool canReload)> onChangedOutside;
    std::function<void()> onFileGone;
    // The file is what was saved again.
    std::function<void()> onFileRestored;
    // The current document went to the Trash; none is current now.
    std::function<void(const Shot &)> onRemoved;

    // Until it is there the document before stays current. A later call overtakes.
    void open(const Shot &shot, const PreviewRequest &preview);
    [[nodiscard]] bool isOpening() const { return m_opening.isLoading(); }
    // Loads the current document anew: its edits are lost.
    void reload();
    // After `EditorFailure::Offer::copyAsNew`: copies the file that could not be opened and opens the copy.
    void copyAsNew();

    // Nothing when there is none.
    [[nodiscard]] EditorDocument *current() { return m_documents.current(); }
    [[nodiscard]] const EditorDocument *current() const { return m_documents.current(); }
    // The best there is of the current document's original.
    [[nodiscard]] QImage image() const { return current() ? current()->image : QImage(); }
    // Of the current document's file.
    [[nodiscard]] QString name() const { return current() ? current()->name() : QString(); }
    [[nodiscard]] QString extension() const { return current() ? current()->extension() : QString(); }

    // In the order they were left, the current one last.
    [[nodiscard]] std::vector<EditorUnsavedDocument> unsavedDocuments() const;
    // Gives up the unsaved edits with the document; when it is the current one, none is current.
    void discard(Id id);
    void discardAll();
    // Something is being written, rendered or copied.
    [[nodiscard]] bool isBusy() const { return !m_tasks.isIdle() || !m_exports.isIdle(); }
    // Nothing would be lost.
    [[nodiscard]] bool canClose() const { return !isBusy() && unsavedDocuments().empty(); }

    // The current document; what is edited meanwhile stays unsaved.
    void save(Completion completion = {});
    void save(Id id, Completion completion = {});
    // Everything that is unsaved or being saved; tells the first failure.
    void saveAll(const Completion &completion);
    // The name without the extension.
    void rename(const QString &name, Completion completion = {});
    // After `EditorFailure::Offer::keepBoth`.
    void renameKeepingBoth(Id id, const QString &name, Completion completion = {});
    // A plain image of the current document, or of another after `EditorFailure::Offer::saveCopy`. The path
    // is one that the user agreed to have replaced; without an extension that can be written it gets the
    // document's. That of the document itself saves it.
    void saveCopy(const QString &path, EditorExports::SaveCompletion completion = {});
    void saveCopy(Id id, const QString &path, EditorExports::SaveCompletion completion = {});
    // Puts the rendered image on the clipboard.
    void copyImage(Completion completion = {});
    // Prepares the rendered image for being dragged into other programs.
    void dragImage(EditorExports::DragCompletion completion);
    // After what is under way.
    void moveToTrash();

    // When the window becomes active and when the folder reports a change.
    void checkFile() { m_checks.check(); }

private:
    void wire();
    void loaded(const Shot &shot, const Result<ScreenshotEditLoaded> &loaded);
    void notLoaded(Id document, const Shot &shot, const Error &error);
    void copied(const Shot &shot, const EditorFileTasks::Outcome &outcome);
    void show(std::unique_ptr<EditorDocument> document, bool keepsPrevious);
    [[nodiscard]] bool isNeeded(const EditorDocument &document) const;
    void decodeCurrent();
    void taskFinished(Id id);
    void fileStateChanged(const EditorDocument &document);
    void trash(Id id);
    void fail(const EditorFailure &failure) const;
    void stateChanged() const;

    const Services m_services;
    const Hooks m_hooks;
    EditorDocumentList m_documents;
    EditorFileTasks m_tasks;
    EditorSaving m_saving;
    EditorExports m_exports;
    EditorFileChecks m_checks;
    EditorOpening m_opening;
    PreviewRequest m_preview;
    // Could not be opened, but a copy of it could.
    std::optional<Shot> m_refused;
    std::int64_t m_lastId = 0;
    // Of what was asked to be opened.
    Generation m_requests;
    Generation m_life;
};

} // namespace tembra
