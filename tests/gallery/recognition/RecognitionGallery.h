#pragma once

#include "recognition/model/OCRState.h"

#include <QImage>
#include <QSize>

#include <vector>

namespace tembra {

// A state of the panel for text recognition that is worth a look.
struct RecognitionGalleryState {
    QString name;
    OCRState state;
    QImage picture;
    // Of the panel.
    QSize size;
    // An image is held over it.
    bool isHighlighted = false;
};

[[nodiscard]] std::vector<RecognitionGalleryState> recognitionGalleryStates();

} // namespace tembra
