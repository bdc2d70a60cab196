#include "editor/documents/EditorFileChecks.h"

#include "base/Background.h"

#include <utility>

namespace tembra {

void EditorFileChecks::check() {
    const EditorDocument *document = m_documents.current();
    if (!document)
        return;
    m_isAskedAgain = std::exchange(m_isChecking, true);
    if (m_isAskedAgain)
        return;
    performInBackground(
        m_services.io, m_services.scheduler, m_generation.ticket(),
        [loaded = document->loaded, seen = document->seen, &files = m_services.files,
         &coordinator = m_services.coordinator] {
            return EditorFileCheck::of(loaded, seen, files, coordinator);
        },
        [this, id = document->id, asked = document->loaded](const EditorFileCheck &found) {
            m_isChecking = false;
            checked(id, asked, found);
        });
}

void EditorFileChecks::cancel() {
    m_generation.advance();
    m_isChecking = false;
    m_isAskedAgain = false;
}

void EditorFileChecks::checked(EditorDocumentId id, const ScreenshotEditLoaded &asked,
                               const EditorFileCheck &found) {
    if (!m_documents.isCurrent(id))
        return;
    EditorDocument &document = *m_documents.current();
    // We have written or renamed it in between; then what was looked for is no more.
    const bool isOutdated =
        document.loaded.path != asked.path || document.loaded.expectedHash != asked.expectedHash;
    if (!isOutdated && found.finding != EditorFileCheck::Finding::unknown)
        document.seen = found.version;
    if (isOutdated || m_isAskedAgain)
        check();
    if (!isOutdated)
        apply(document, found);
}

void EditorFileChecks::apply(EditorDocument &document, const EditorFileCheck &found) {
    using Finding = EditorFileCheck::Finding;
    using State = EditorDocument::FileState;
    if (found.finding == Finding::unknown)
        return;
    const auto life = m_generation.ticket();
    if (found.path != document.loaded.path) {
        document.follow(found.path);
        if (onMoved)
            onMoved();
    }
    if (found.finding == Finding::asSeen || !life.isCurrent())
        return;
    const State state = found.finding == Finding::asSaved   ? State::asSaved
                        : found.finding == Finding::changed ? State::changedOutside
                                                            : State::gone;
    const bool isNews = std::exchange(document.fileState, state) != state || state == State::changedOutside;
    if (isNews && onState)
        onState(document);
}

} // namespace tembra
