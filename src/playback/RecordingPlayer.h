#pragma once

#include <QImage>
#include <QString>

#include <functional>

namespace tembra {

// Plays one recording, picture by picture, with its sound where there is a device for it. Main thread.
class RecordingPlayer {
public:
    virtual ~RecordingPlayer() = default;

    // Each picture when its time has come.
    std::function<void(const QImage &frame)> onFrame;

    // From the beginning. Of a file that cannot be played no picture comes.
    virtual void play(const QString &path) = 0;
    // Holds it at the picture shown, or goes on; after the end it begins anew.
    virtual void togglePause() = 0;
};

} // namespace tembra
