#pragma once

#include "editor/documents/EditorDocument.h"

#include <functional>
#include <memory>
#include <vector>

namespace tembra {

// The open documents: the current one and those that were left with unsaved edits. Main thread; owned by
// EditorDocuments.
class EditorDocumentList {
public:
    [[nodiscard]] EditorDocument *current() { return m_current.get(); }
    [[nodiscard]] const EditorDocument *current() const { return m_current.get(); }
    [[nodiscard]] bool isCurrent(EditorDocumentId id) const { return m_current && m_current->id == id; }
    // Nothing when it is not open any more.
    [[nodiscard]] EditorDocument *find(EditorDocumentId id);
    [[nodiscard]] EditorDocument *find(const Shot &shot);
    // In the order they were left, the current one last.
    [[nodiscard]] std::vector<const EditorDocument *> all() const;

    // Makes it the current one; gives the one that was.
    [[nodiscard]] std::unique_ptr<EditorDocument> setCurrent(std::unique_ptr<EditorDocument> document);
    void keep(std::unique_ptr<EditorDocument> document);
    // From those that are kept; nothing when it is none of them.
    [[nodiscard]] std::unique_ptr<EditorDocument> take(EditorDocumentId id);

private:
    std::unique_ptr<EditorDocument> m_current;
    std::vector<std::unique_ptr<EditorDocument>> m_kept;
};

} // namespace tembra
