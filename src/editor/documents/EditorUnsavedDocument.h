#pragma once

#include "editor/documents/EditorDocumentId.h"
#include "screenshots/Shot.h"

#include <QString>

namespace tembra {

// A document with unsaved edits, as the user is asked about it. A value.
struct EditorUnsavedDocument {
    EditorDocumentId id = EditorDocumentId::none;
    QString fileName;
    Shot shot;

    bool operator==(const EditorUnsavedDocument &) const = default;
};

} // namespace tembra
