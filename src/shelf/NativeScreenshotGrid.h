#pragma once

#include "shelf/FileGrid.h"
#include "shelf/FilePresentation.h"

namespace tembra {

// The screenshots tab: the user's screenshots by their sections.
class NativeScreenshotGrid final : public FileGrid {
    Q_OBJECT

public:
    explicit NativeScreenshotGrid(const FilePresentation &presentation, QWidget *parent = nullptr);
};

} // namespace tembra
