#pragma once

#include "playback/RecordingPlayer.h"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QVideoSink>

namespace tembra {

// Plays by Qt Multimedia.
class QtRecordingPlayer final : public RecordingPlayer {
public:
    QtRecordingPlayer();

    void play(const QString &path) override;
    void togglePause() override;

private:
    // Chosen before anything of Qt Multimedia is made.
    struct Backend {
        Backend();
    };

    Backend m_backend;
    QVideoSink m_sink;
    QAudioOutput m_sound;
    QMediaPlayer m_player;
};

} // namespace tembra
