#include "shelf/ScreenshotCollectionView.h"

#include "shelf/NativeScreenshotCell.h"

namespace tembra {

ScreenshotCollectionView::ScreenshotCollectionView(const FilePresentation &presentation)
    : FileCollectionView(
          [presentation](QWidget *view) { return new NativeScreenshotCell(presentation, view); }) {
    setAccessibleName(tr("Screenshots"));
}

} // namespace tembra
