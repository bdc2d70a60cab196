#pragma once

#include "editor/chrome/EditorDockState.h"
#include "editor/chrome/EditorHeaderState.h"
#include "editor/documents/EditorDocument.h"

namespace tembra {

class ScreenshotCanvasView;

// What the controls around the canvas show, read off the canvas and the document. The dock's without the
// notice.
[[nodiscard]] EditorDockState editorDockState(const ScreenshotCanvasView &canvas);
[[nodiscard]] EditorHeaderState editorHeaderState(EditorDocument *document);

} // namespace tembra
