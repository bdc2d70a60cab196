#pragma once

#include "base/Generation.h"
#include "editor/documents/EditorDocumentList.h"
#include "editor/documents/EditorFailure.h"
#include "editor/documents/EditorFileTasks.h"
#include "editor/model/ScreenshotEditStore.h"

#include <functional>
#include <vector>

namespace tembra {

// Saves and renames the files of open documents, whose annotations, selection and history stay as they are.
// Main thread; owned by EditorDocuments.
class EditorSaving {
public:
    using Completion = std::function<void(const Result<void> &)>;

    EditorSaving(EditorDocumentList &documents, EditorFileTasks &tasks, ScreenshotEditStore &store);

    std::function<void(const EditorFailure &)> onFailure;
    // The image as it was saved. The document may be gone.
    std::function<void(EditorDocumentId, const EditorWritten &)> onSaved;

    // Succeeds at once when there is nothing to save.
    void save(EditorDocumentId document, Completion completion);
    // One after the other; a failure does not keep the others from it. Tells the first one.
    void saveAll(const std::vector<EditorDocumentId> &documents, const Completion &completion);
    // The name without the extension.
    void rename(EditorDocumentId document, const QString &name, bool keepsBoth, Completion completion);

private:
    [[nodiscard]] std::optional<EditorFileTasks::Write> saveOf(EditorDocumentId id);
    [[nodiscard]] std::optional<EditorFileTasks::Write> renameOf(EditorDocumentId id, const QString &name,
                                                                 bool keepsBoth);
    void written(EditorDocumentId id, const EditorWritten &written);
    void failed(const EditorFailure &failed, const Completion &completion);
    [[nodiscard]] QString fileName(EditorDocumentId id);

    EditorDocumentList &m_documents;
    EditorFileTasks &m_tasks;
    ScreenshotEditStore &m_store;
    Generation m_life;
};

} // namespace tembra
