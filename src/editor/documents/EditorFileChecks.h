#pragma once

#include "base/Generation.h"
#include "editor/documents/EditorDocumentList.h"
#include "editor/documents/EditorDocumentsServices.h"
#include "editor/documents/EditorFileCheck.h"

#include <functional>

namespace tembra {

// Looks whether another program wrote, moved or took away the file of the current document. Our own writes do
// not count. Main thread; owned by EditorDocuments.
class EditorFileChecks {
public:
    EditorFileChecks(EditorDocumentList &documents, const EditorDocumentsServices &services)
        : m_documents(documents), m_services(services) {}

    // The document's `fileState` is another, or its file was changed once more.
    std::function<void(const EditorDocument &)> onState;
    std::function<void()> onMoved;

    // Costs one system call in the background as long as the file is the same.
    void check();
    // Another document is current.
    void cancel();

private:
    void checked(EditorDocumentId id, const ScreenshotEditLoaded &asked, const EditorFileCheck &check);
    void apply(EditorDocument &document, const EditorFileCheck &check);

    EditorDocumentList &m_documents;
    const EditorDocumentsServices m_services;
    bool m_isChecking = false;
    // Asked for while one was under way, which may have looked before.
    bool m_isAskedAgain = false;
    Generation m_generation;
};

} // namespace tembra
