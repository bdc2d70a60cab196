#include "playback/PlaybackModule.h"
#include "playback/module/QtRecordingPlayer.h"

#include <QObject>

namespace tembra {

class QtPlaybackModule final : public QObject, public PlaybackModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "app.tembra.PlaybackModule/1")
    Q_INTERFACES(tembra::PlaybackModule)

public:
    [[nodiscard]] std::unique_ptr<RecordingPlayer> makePlayer() override {
        return std::make_unique<QtRecordingPlayer>();
    }
};

} // namespace tembra

#include "QtPlaybackModule.moc"
