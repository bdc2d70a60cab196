#pragma once

#include "shelf/FileCollectionView.h"
#include "shelf/FilePresentation.h"

namespace tembra {

// The document of the screenshots tab.
class ScreenshotCollectionView final : public FileCollectionView {
    Q_OBJECT

public:
    explicit ScreenshotCollectionView(const FilePresentation &presentation);
};

} // namespace tembra
