#include "editor/window/EditorControlsState.h"

#include "editor/canvas/AnnotationEditing.h"
#include "editor/canvas/ScreenshotCanvasView.h"

#include <algorithm>

namespace tembra {

namespace {

using Kind = ScreenshotAnnotation::Kind;

// What several annotations have in common is shown as the first one has it.
void describe(EditorDockState &state, const ScreenshotAnnotation &annotation) {
    const EditorStyle style = annotationEditing::styleOf(annotation);
    if (annotation.kind != Kind::blur && !state.color)
        state.color = style.color;
    if (annotation.kind != Kind::blur && !state.size) {
        state.size = style.size;
        std::tie(state.smallestSize, state.largestSize) = annotationEditing::sizeLimits(annotation.kind);
    }
    if (annotation.isShape() && !state.isFilled)
        state.isFilled = style.isFilled;
    if (annotation.text && !state.hasBackground)
        state.hasBackground = style.hasBackground;
    if (annotation.blur && !state.strength)
        state.strength = style.strength;
    state.canStraighten = state.canStraighten || annotation.bendPoint;
}

} // namespace

EditorDockState editorDockState(const ScreenshotCanvasView &canvas) {
    EditorDockState state{.tool = canvas.tool()};
    if (const EditorCropSession *session = canvas.cropSession()) {
        state.crop = session->rect().size().toSize();
        return state;
    }
    const std::vector<ScreenshotAnnotation> styled = canvas.styledAnnotations();
    for (const ScreenshotAnnotation &annotation : styled)
        describe(state, annotation);
    if (styled.empty())
        state.color = canvas.color();
    if (styled.size() == 1 && styled.front().number)
        state.number = styled.front().number->value;
    if (canvas.tool() == EditorTool::blur)
        state.blurMode = canvas.blurMode();
    return state;
}

EditorHeaderState editorHeaderState(EditorDocument *document) {
    if (!document)
        return {.hasScreenshot = false};
    const QUndoStack &history = document->edits.history();
    return {.name = document->name(),
            .extension = document->extension().mid(1),
            .isDirty = document->edits.isDirty(),
            .canUndo = history.canUndo(),
            .undoName = history.undoText(),
            .canRedo = history.canRedo(),
            .redoName = history.redoText(),
            .canSave = document->edits.isDirty()};
}

} // namespace tembra
