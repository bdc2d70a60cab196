#include "editor/chrome/EditorOverlays.h"

#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorZoomControl.h"

#include <QStyle>

namespace tembra {

namespace {

constexpr int margin = 18;
constexpr int zoomBottom = 26;
constexpr int gap = 8;
constexpr int narrowMargin = 8;

} // namespace

void placeEditorOverlays(EditorDock &dock, EditorZoomControl &zoom, const QRect &area) {
    const QSize zoomSize = zoom.sizeHint();
    const int beside = area.width() - 2 * (margin + zoomSize.width() + gap);
    const bool hasRoomBeside = dock.narrowestWidth() <= beside;
    dock.setAvailableWidth(hasRoomBeside ? beside : area.width() - 2 * narrowMargin);
    const QSize size = dock.sizeHint();
    dock.setGeometry(
        QRect({area.center().x() + 1 - size.width() / 2, area.bottom() + 1 - margin - size.height()}, size));
    QRect place(QPoint(area.right() + 1 - margin - zoomSize.width(),
                       area.bottom() + 1 - zoomBottom - zoomSize.height()),
                zoomSize);
    if (!hasRoomBeside)
        place.moveBottom(dock.geometry().top() - gap);
    zoom.setGeometry(QStyle::visualRect(zoom.layoutDirection(), area, place));
}

} // namespace tembra
