#pragma once

#include <QImage>
#include <QString>

namespace tembra {

// A file in the preview. A value.
struct PreviewItem {
    QString path;
    bool isRecording = false;
    // Its images follow each other.
    bool isPlayed = false;
    // Null until it is loaded, and when it cannot be.
    QImage image;
    bool isLoaded = false;

    bool operator==(const PreviewItem &) const = default;
};

} // namespace tembra
