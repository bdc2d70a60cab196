#pragma once

class QRect;

namespace tembra {

class EditorDock;
class EditorZoomControl;

// Puts the dock to the middle of the area's bottom and the zoom control to its far corner, beside the dock
// or, where there is no room, above it. Sizes them too. The area is in their parent's coordinates. To be
// called again whenever the area or EditorDock::sizeHintChanged() tells of a change.
void placeEditorOverlays(EditorDock &dock, EditorZoomControl &zoom, const QRect &area);

} // namespace tembra
