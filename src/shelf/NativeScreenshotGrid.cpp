#include "shelf/NativeScreenshotGrid.h"

#include "shelf/ScreenshotCollectionView.h"

namespace tembra {

NativeScreenshotGrid::NativeScreenshotGrid(const FilePresentation &presentation, QWidget *parent)
    : FileGrid(std::make_unique<ScreenshotCollectionView>(presentation), parent) {}

} // namespace tembra
