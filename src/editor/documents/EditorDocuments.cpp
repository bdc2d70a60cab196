#include "editor/documents/EditorDocuments.h"

#include "base/MainThread.h"
#include "editor/documents/ImageFile.h"
#include "editor/model/ScreenshotEditError.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace tembra {

namespace {

bool isOfferedAsCopy(const Error &error) {
    return error.domain == ScreenshotEditError::domain &&
           error.code == ScreenshotEditError::changedBeforeOpening;
}

} // namespace

EditorDocuments::EditorDocuments(const Services &services, Hooks hooks)
    : m_services(services),
      m_hooks(std::move(hooks)),
      m_tasks(services.io, services.scheduler, services.files, m_hooks),
      m_saving(m_documents, m_tasks, services.store),
      m_exports(m_documents, m_tasks, services),
      m_checks(m_documents, services),
      m_opening(services) {
    wire();
}

void EditorDocuments::wire() {
    m_tasks.onFinished = [this](Id id) { taskFinished(id); };
    m_saving.onFailure = [this](const EditorFailure &failure) { fail(failure); };
    m_saving.onSaved = [this](Id id, const EditorWritten &saved) {
        if (saved.loaded)
            m_exports.remember(id, {saved.loaded->record.annotations, saved.loaded->record.cropRect},
                               saved.png);
    };
    m_exports.onFailure = [this](const EditorFailure &failure) { fail(failure); };
    m_exports.onFinished = [this] { stateChanged(); };
    m_checks.onState = [this](const EditorDocument &document) { fileStateChanged(document); };
    m_checks.onMoved = [this] { stateChanged(); };
}

void EditorDocuments::open(const Shot &shot, const PreviewRequest &preview) {
    requireMainThread();
    m_preview = preview;
    m_refused.reset();
    m_requests.advance();
    m_opening.cancelLoad();
    const EditorDocument *known = m_documents.find(shot);
    if (!known) {
        m_opening.load(shot.location, preview,
                       [this, shot](const Result<ScreenshotEditLoaded> &result) { loaded(shot, result); });
        return;
    }
    const auto life = m_life.ticket();
    if (!m_documents.isCurrent(known->id))
        show(m_documents.take(known->id), true);
    if (life.isCurrent())
        m_checks.check();
}

void EditorDocuments::loaded(const Shot &shot, const Result<ScreenshotEditLoaded> &loaded) {
    if (loaded)
        show(std::make_unique<EditorDocument>(Id{++m_lastId}, shot, *loaded), true);
    else
        notLoaded(Id::none, shot, loaded.error());
}

void EditorDocuments::notLoaded(Id document, const Shot &shot, const Error &error) {
    const bool isOffered = isOfferedAsCopy(error);
    if (isOffered)
        m_refused = shot;
    fail({.error = error,
          .offer = isOffered ? EditorFailure::Offer::copyAsNew : EditorFailure::Offer::none,
          .document = document,
          .fileName = QFileInfo(shot.location).fileName()});
}

void EditorDocuments::reload() {
    requireMainThread();
    if (!current())
        return;
    m_refused.reset();
    m_requests.advance();
    m_opening.load(current()->loaded.path, m_preview,
                   [this, id = current()->id, shot = current()->shot(),
                    edits = current()->currentEdits()](const Result<ScreenshotEditLoaded> &result) {
                       if (!result)
                           notLoaded(id, shot, result.error());
                       // What was edited meanwhile is not lost.
                       else if (m_documents.isCurrent(id) && current()->currentEdits() == edits)
                           show(std::make_unique<EditorDocument>(Id{++m_lastId}, shot, *result), false);
                   });
}

void EditorDocuments::copyAsNew() {
    requireMainThread();
    const auto refused = std::exchange(m_refused, std::nullopt);
    if (!refused)
        return;
    m_tasks.add(
        Id::none,
        [this, shot = *refused] {
            return EditorFileTasks::Write{
                shot,
                [&files = m_services.files, &coordinator = m_services.coordinator,
                 path = shot.location]() -> Result<EditorWritten> {
                    return ImageFile(files, coordinator).copyBeside(path).map([](const QString &copy) {
                        return EditorWritten{.path = copy};
                    });
                }};
        },
        [this, shot = *refused, request = m_requests.ticket()](const EditorFileTasks::Outcome &outcome) {
            if (request.isCurrent() || !*outcome)
                copied(shot, outcome);
        });
}

void EditorDocuments::copied(const Shot &shot, const EditorFileTasks::Outcome &outcome) {
    if (*outcome)
        return open((*outcome)->shot(shot), m_preview);
    fail({.error = outcome->error(), .fileName = QFileInfo(shot.location).fileName()});
}

void EditorDocuments::show(std::unique_ptr<EditorDocument> document, bool keepsPrevious) {
    if (onCurrentWillChange)
        onCurrentWillChange();
    m_opening.cancelDecode();
    std::unique_ptr<EditorDocument> previous = m_documents.setCurrent(std::move(document));
    if (previous && keepsPrevious && isNeeded(*previous)) {
        // Of those that are not shown the preview is enough.
        previous->image = previous->loaded.preview;
        m_documents.keep(std::move(previous));
    }
    decodeCurrent();
    m_checks.cancel();
    if (onCurrentChanged)
        onCurrentChanged();
}

bool EditorDocuments::isNeeded(const EditorDocument &document) const {
    return document.edits.isDirty() || m_tasks.hasWorkFor(document.id);
}

void EditorDocuments::decodeCurrent() {
    const EditorDocument *document = current();
    if (!document || document->hasFullImage())
        return;
    m_opening.decode(document->loaded.original, [this, id = document->id](const QImage &image) {
        if (!m_documents.isCurrent(id))
            return;
        current()->image = image;
        if (onFullImage)
            onFullImage(image);
    });
}

void EditorDocuments::taskFinished(Id id) {
    const EditorDocument *document = m_documents.find(id);
    if (document && !m_documents.isCurrent(id) && !isNeeded(*document))
        m_documents.take(id).reset();
    stateChanged();
}

std::vector<EditorUnsavedDocument> EditorDocuments::unsavedDocuments() const {
    std::vector<EditorUnsavedDocument> unsaved;
    for (const EditorDocument *document : m_documents.all()) {
        if (document->edits.isDirty())
            unsaved.push_back({document->id, document->fileName(), document->shot()});
    }
    return unsaved;
}

void EditorDocuments::discard(Id id) {
    requireMainThread();
    if (m_documents.isCurrent(id))
        show(nullptr, false);
    else if (m_documents.take(id))
        stateChanged();
}

void EditorDocuments::discardAll() {
    const auto life = m_life.ticket();
    for (const EditorUnsavedDocument &document : unsavedDocuments()) {
        if (life.isCurrent())
            discard(document.id);
    }
}

void EditorDocuments::save(Completion completion) {
    save(current() ? current()->id : Id::none, std::move(completion));
}

void EditorDocuments::save(Id id, Completion completion) {
    requireMainThread();
    m_saving.save(id, std::move(completion));
}

void EditorDocuments::saveAll(const Completion &completion) {
    requireMainThread();
    std::vector<Id> ids;
    for (const EditorDocument *document : m_documents.all()) {
        if (isNeeded(*document))
            ids.push_back(document->id);
    }
    m_saving.saveAll(ids, completion);
}

void EditorDocuments::rename(const QString &name, Completion completion) {
    requireMainThread();
    if (current())
        m_saving.rename(current()->id, name, false, std::move(completion));
}

void EditorDocuments::renameKeepingBoth(Id id, const QString &name, Completion completion) {
    requireMainThread();
    if (m_documents.find(id))
        m_saving.rename(id, name, true, std::move(completion));
}

void EditorDocuments::saveCopy(const QString &path, EditorExports::SaveCompletion completion) {
    saveCopy(current() ? current()->id : Id::none, path, std::move(completion));
}

void EditorDocuments::saveCopy(Id id, const QString &path, EditorExports::SaveCompletion completion) {
    requireMainThread();
    const EditorDocument *document = m_documents.find(id);
    if (!document)
        return;
    if (QDir::cleanPath(path) != QDir::cleanPath(document->loaded.path))
        return m_exports.saveCopy(*document, path, std::move(completion));
    m_saving.save(id, [path, completion = std::move(completion)](const Result<void> &saved) {
        if (completion)
            completion(saved.map([&] { return path; }));
    });
}

void EditorDocuments::copyImage(Completion completion) {
    requireMainThread();
    if (current())
        m_exports.copy(*current(), std::move(completion));
}

void EditorDocuments::dragImage(EditorExports::DragCompletion completion) {
    requireMainThread();
    if (current())
        m_exports.drag(*current(), std::move(completion));
}

void EditorDocuments::moveToTrash() {
    requireMainThread();
    if (!current())
        return;
    m_tasks.add(
        current()->id, [] { return std::nullopt; },
        [this, id = current()->id](const EditorFileTasks::Outcome &) { trash(id); });
}

void EditorDocuments::trash(Id id) {
    const EditorDocument *document = m_documents.find(id);
    if (!document || !m_hooks.trash)
        return;
    const Shot shot = document->shot();
    const auto moved = m_hooks.trash(document->loaded.path, document->loaded.identity);
    if (!moved)
        return fail({.error = moved.error(), .document = id, .fileName = document->fileName()});
    const bool wasCurrent = m_documents.isCurrent(id);
    const auto life = m_life.ticket();
    discard(id);
    if (wasCurrent && life.isCurrent() && onRemoved)
        onRemoved(shot);
}

void EditorDocuments::fileStateChanged(const EditorDocument &document) {
    switch (document.fileState) {
    case EditorDocument::FileState::asSaved:
        if (onFileRestored)
            onFileRestored();
        return;
    case EditorDocument::FileState::changedOutside:
        if (onChangedOutside)
            onChangedOutside(!document.edits.isDirty());
        return;
    case EditorDocument::FileState::gone:
        if (onFileGone)
            onFileGone();
        return;
    }
}

void EditorDocuments::fail(const EditorFailure &failure) const {
    if (onError)
        onError(failure);
}

void EditorDocuments::stateChanged() const {
    if (onStateChanged)
        onStateChanged();
}

} // namespace tembra
