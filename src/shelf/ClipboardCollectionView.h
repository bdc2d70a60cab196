#pragma once

#include "shelf/FileCollectionView.h"
#include "shelf/FilePresentation.h"

namespace tembra {

// The document of the file tray.
class ClipboardCollectionView final : public FileCollectionView {
    Q_OBJECT

public:
    explicit ClipboardCollectionView(const FilePresentation &presentation);
};

} // namespace tembra
