#include "editor/documents/EditorDocument.h"

#include <QFileInfo>

namespace tembra {

EditorDocument::EditorDocument(EditorDocumentId documentId, const Shot &shot,
                               const ScreenshotEditLoaded &state)
    : id(documentId), loaded(state), edits(state), image(state.preview) {
    edits.residentImage = shot;
    edits.residentImage->location = state.path;
    edits.residentImage->identity = state.identity;
}

QString EditorDocument::name() const {
    return QFileInfo(loaded.path).fileName().chopped(extension().size());
}

QString EditorDocument::extension() const {
    const QString suffix = QFileInfo(loaded.path).suffix();
    return suffix.isEmpty() ? QString() : u'.' + suffix;
}

void EditorDocument::renew(const EditorWritten &written) {
    if (!written.loaded)
        return;
    loaded = *written.loaded;
    edits.refreshBaseline(loaded);
    fileState = FileState::asSaved;
    // Another program may have written the file again since: the next check reads it.
    seen.reset();
    edits.residentImage = written.shot(shot());
}

void EditorDocument::follow(const QString &path) {
    loaded.path = path;
    edits.residentImage->location = path;
}

} // namespace tembra
