#include "editor/chrome/EditorOverlays.h"

#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorZoomControl.h"

#include <QStyle>

#include <algorithm>

namespace tembra {

namespace {

constexpr int margin = 18;
constexpr int zoomBottom = 26;
constexpr int gap = 8;
constexpr int narrowMargin = 8;

} // namespace

void placeEditorOverlays(EditorDock &dock, EditorZoomControl &zoom, const QRect &area) {
    const QSize zoomSize = zoom.sizeHint();
    const int beside = area.width() - 2 * margin - zoomSize.width() - gap;
    const bool hasRoomBeside = dock.narrowestWidth() <= beside;
    const int room = hasRoomBeside ? beside : area.width() - 2 * narrowMargin;
    dock.setAvailableWidth(room);
    const QSize size = dock.sizeHint();
    // In the middle as most tools have it, and the same for the others as far as there is room.
    const int first = area.left() + (hasRoomBeside ? margin : narrowMargin);
    const int middle = area.center().x() + 1 - (dock.isStacked() ? size.width() : dock.usualWidth()) / 2;
    const int left = std::max(first, std::min(middle, first + room - size.width()));
    QRect bar(QPoint(left, area.bottom() + 1 - margin - size.height()), size);
    QRect place(QPoint(area.right() + 1 - margin - zoomSize.width(),
                       area.bottom() + 1 - zoomBottom - zoomSize.height()),
                zoomSize);
    if (!hasRoomBeside)
        place.moveBottom(bar.top() - gap);
    dock.setGeometry(QStyle::visualRect(dock.layoutDirection(), area, bar));
    zoom.setGeometry(QStyle::visualRect(zoom.layoutDirection(), area, place));
}

} // namespace tembra
