#include "editor/documents/EditorSaving.h"

#include "editor/model/ScreenshotEditError.h"

#include <memory>
#include <utility>

namespace tembra {

namespace {

using Write = EditorFileTasks::Write;

EditorFailure::Offer offerOf(const Error &error) {
    const bool isChanged =
        error.domain == ScreenshotEditError::domain && error.code == ScreenshotEditError::changedBeforeSaving;
    return isChanged ? EditorFailure::Offer::saveCopy : EditorFailure::Offer::none;
}

void complete(const EditorSaving::Completion &completion, const Result<void> &result) {
    if (completion)
        completion(result);
}

} // namespace

EditorSaving::EditorSaving(EditorDocumentList &documents, EditorFileTasks &tasks, ScreenshotEditStore &store)
    : m_documents(documents), m_tasks(tasks), m_store(store) {}

void EditorSaving::save(EditorDocumentId id, Completion completion) {
    const EditorDocument *document = m_documents.find(id);
    if (!document || (!document->edits.isDirty() && !m_tasks.hasWorkFor(id)))
        return complete(completion, {});
    m_tasks.add(
        id, [this, id] { return saveOf(id); },
        [this, id, completion = std::move(completion)](const EditorFileTasks::Outcome &outcome) {
            if (outcome && !*outcome)
                return failed({.error = outcome->error(),
                               .offer = offerOf(outcome->error()),
                               .document = id,
                               .fileName = fileName(id)},
                              completion);
            if (outcome) {
                written(id, **outcome);
                if (onSaved)
                    onSaved(id, **outcome);
            }
            complete(completion, {});
        });
}

std::optional<Write> EditorSaving::saveOf(EditorDocumentId id) {
    const EditorDocument *document = m_documents.find(id);
    if (!document || !document->edits.isDirty())
        return std::nullopt;
    return Write{document->shot(),
                 [&store = m_store, loaded = document->loaded,
                  edits = document->currentEdits()]() -> Result<EditorWritten> {
                     auto saved = store.save(loaded, edits.annotations, edits.cropRect);
                     if (!saved)
                         return failure(saved.error());
                     return EditorWritten{.path = saved->path,
                                          .before = loaded.identity,
                                          .loaded = std::move(saved->loaded),
                                          .png = saved->clipboardPNG.value_or(QByteArray())};
                 }};
}

void EditorSaving::saveAll(const std::vector<EditorDocumentId> &documents, const Completion &completion) {
    struct Progress {
        std::size_t left;
        Result<void> outcome;
    };
    if (documents.empty())
        return complete(completion, {});
    const auto progress = std::make_shared<Progress>(Progress{documents.size(), {}});
    for (const EditorDocumentId id : documents) {
        save(id, [progress, completion](const Result<void> &result) {
            if (!result && progress->outcome)
                progress->outcome = result;
            if (--progress->left == 0)
                complete(completion, progress->outcome);
        });
    }
}

void EditorSaving::rename(EditorDocumentId id, const QString &name, bool keepsBoth, Completion completion) {
    m_tasks.add(
        id, [this, id, name, keepsBoth] { return renameOf(id, name, keepsBoth); },
        [this, id, name, completion = std::move(completion)](const EditorFileTasks::Outcome &outcome) {
            if (outcome && !*outcome) {
                const bool isTaken = ScreenshotEditStore::isNameCollision(outcome->error());
                return failed({.error = outcome->error(),
                               .offer = isTaken ? EditorFailure::Offer::keepBoth : EditorFailure::Offer::none,
                               .document = id,
                               .fileName = fileName(id),
                               .wantedName = name},
                              completion);
            }
            if (outcome)
                written(id, **outcome);
            complete(completion, {});
        });
}

std::optional<Write> EditorSaving::renameOf(EditorDocumentId id, const QString &name, bool keepsBoth) {
    const EditorDocument *document = m_documents.find(id);
    if (!document || name.trimmed() == document->name())
        return std::nullopt;
    return Write{document->shot(),
                 [&store = m_store, loaded = document->loaded, name, keepsBoth]() -> Result<EditorWritten> {
                     auto renamed =
                         keepsBoth ? store.renameKeepingBoth(loaded, name) : store.rename(loaded, name);
                     if (!renamed)
                         return failure(renamed.error());
                     return EditorWritten{
                         .path = renamed->path, .before = loaded.identity, .loaded = std::move(*renamed)};
                 }};
}

void EditorSaving::written(EditorDocumentId id, const EditorWritten &written) {
    if (EditorDocument *document = m_documents.find(id))
        document->renew(written);
    if (written.loaded)
        m_store.updateBadge(*written.loaded, written.before);
}

void EditorSaving::failed(const EditorFailure &failed, const Completion &completion) {
    const auto life = m_life.ticket();
    if (onFailure)
        onFailure(failed);
    if (life.isCurrent())
        complete(completion, failure(failed.error));
}

QString EditorSaving::fileName(EditorDocumentId id) {
    const EditorDocument *document = m_documents.find(id);
    return document ? document->fileName() : QString();
}

} // namespace tembra
