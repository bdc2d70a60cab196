#pragma once

#include "editor/documents/EditorDocumentsServices.h"
#include "platform/Displays.h"
#include "platform/Pasteboard.h"
#include "platform/TextRecognizer.h"
#include "platform/Thumbnails.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

namespace tembra {

// What the editor takes from the platform and the composition root; all of it outlives the editor.
struct ScreenshotEditorServices {
    EditorDocumentsServices documents;
    UserDefaults &defaults;
    Pasteboard &pasteboard;
    Thumbnails &thumbnails;
    Workspace &workspace;
    const TextRecognizer &recognizer;
    // The queue "Tembra.Editor.WordRecognition".
    SerialQueue &wordQueue;
};

} // namespace tembra
