#pragma once

#include "base/Result.h"
#include "editor/documents/EditorDocumentId.h"

#include <QString>

namespace tembra {

// What went wrong with a document, and what the user may do then. A value.
struct EditorFailure {
    enum class Offer {
        none,
        // `EditorDocuments::copyAsNew`
        copyAsNew,
        // `EditorDocuments::saveCopy`, of this document
        saveCopy,
        // `EditorDocuments::renameKeepingBoth`, with the name that was wanted
        keepBoth,
    };

    Error error;
    Offer offer = Offer::none;
    // None when it is about a screenshot that is not open.
    EditorDocumentId document = EditorDocumentId::none;
    // Of the file.
    QString fileName;
    // That the file was to get.
    QString wantedName;
};

} // namespace tembra
