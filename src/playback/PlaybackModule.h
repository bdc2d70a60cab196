#pragma once

#include "playback/RecordingPlayer.h"

#include <QtPlugin>

#include <memory>

namespace tembra {

// What the module that plays recordings offers. It is a module of its own because its libraries are large and
// wanted by few, and may not be installed.
class PlaybackModule {
public:
    virtual ~PlaybackModule() = default;
    [[nodiscard]] virtual std::unique_ptr<RecordingPlayer> makePlayer() = 0;
};

// Nothing where the module or what it needs is not installed. The module is loaded when it is first asked
// for.
[[nodiscard]] std::unique_ptr<RecordingPlayer> makeRecordingPlayer();

} // namespace tembra

Q_DECLARE_INTERFACE(tembra::PlaybackModule, "app.tembra.PlaybackModule/1")
