#include "shelf/ClipboardCollectionView.h"

#include "shelf/ClipboardCell.h"

namespace tembra {

ClipboardCollectionView::ClipboardCollectionView(const FilePresentation &presentation)
    : FileCollectionView([presentation](QWidget *view) { return new ClipboardCell(presentation, view); }) {
    setAccessibleName(tr("File Tray"));
}

} // namespace tembra
