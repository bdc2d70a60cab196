#include "playback/module/QtRecordingPlayer.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QUrl>
#include <QVideoFrame>

namespace tembra {

// The other one wants a codec package for each format.
QtRecordingPlayer::Backend::Backend() {
    if (qEnvironmentVariableIsEmpty("QT_MEDIA_BACKEND"))
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

QtRecordingPlayer::QtRecordingPlayer() {
    m_player.setVideoSink(&m_sink);
    // Without a device to play on, an output would hold the pictures up as well.
    if (!QMediaDevices::defaultAudioOutput().isNull())
        m_player.setAudioOutput(&m_sound);
    QObject::connect(&m_sink, &QVideoSink::videoFrameChanged, &m_player, [this](const QVideoFrame &frame) {
        const QImage image = frame.toImage();
        if (!image.isNull() && onFrame)
            onFrame(image);
    });
}

void QtRecordingPlayer::play(const QString &path) {
    m_player.setSource(QUrl::fromLocalFile(path));
    m_player.play();
}

void QtRecordingPlayer::togglePause() {
    if (m_player.playbackState() == QMediaPlayer::PlayingState)
        m_player.pause();
    else
        m_player.play();
}

} // namespace tembra
