#include "editor/documents/EditorDocumentList.h"

#include <algorithm>
#include <utility>

namespace tembra {

EditorDocument *EditorDocumentList::find(EditorDocumentId id) {
    if (isCurrent(id))
        return m_current.get();
    const auto found =
        std::ranges::find_if(m_kept, [id](const auto &document) { return document->id == id; });
    return found == m_kept.end() ? nullptr : found->get();
}

// By what the file system knows the file by, else by its name: another program that writes it anew makes
// another file.
EditorDocument *EditorDocumentList::find(const Shot &shot) {
    std::vector<EditorDocument *> documents;
    if (m_current)
        documents.push_back(m_current.get());
    std::ranges::transform(m_kept, std::back_inserter(documents), [](const auto &one) { return one.get(); });
    auto found = std::ranges::find_if(documents, [&](const EditorDocument *document) {
        return document->loaded.identity == shot.identity;
    });
    if (found == documents.end())
        found = std::ranges::find_if(documents, [&](const EditorDocument *document) {
            return document->loaded.path == shot.location;
        });
    return found == documents.end() ? nullptr : *found;
}

std::vector<const EditorDocument *> EditorDocumentList::all() const {
    std::vector<const EditorDocument *> documents;
    std::ranges::transform(m_kept, std::back_inserter(documents), [](const auto &one) { return one.get(); });
    if (m_current)
        documents.push_back(m_current.get());
    return documents;
}

std::unique_ptr<EditorDocument> EditorDocumentList::setCurrent(std::unique_ptr<EditorDocument> document) {
    return std::exchange(m_current, std::move(document));
}

void EditorDocumentList::keep(std::unique_ptr<EditorDocument> document) {
    m_kept.push_back(std::move(document));
}

std::unique_ptr<EditorDocument> EditorDocumentList::take(EditorDocumentId id) {
    const auto found =
        std::ranges::find_if(m_kept, [id](const auto &document) { return document->id == id; });
    if (found == m_kept.end())
        return nullptr;
    auto document = std::move(*found);
    m_kept.erase(found);
    return document;
}

} // namespace tembra
