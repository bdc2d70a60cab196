#include "platform/linux/desktop/CanberraSounds.h"

#include <QCoreApplication>
#include <QLibrary>

#include <canberra.h>

namespace tembra {

namespace {

// Of the program's end with a sound that is just being handed over.
constexpr int patienceMilliseconds = 100;

// Names of freedesktop.org sound themes.
const char *soundName(Sounds::Event event) {
    switch (event) {
    case Sounds::Event::movedToTrash:
        return "trash-empty";
    case Sounds::Event::restored:
        return "device-added";
    }
    return "";
}

// The library is loaded for the first sound: with it come the readers of several formats. It stays until the
// process ends: to destroy the context would cut off the sound that is playing, and unload code that its
// player may still be running.
struct Player {
    Player() {
        QLibrary library(QStringLiteral("canberra"), 0);
        const auto create =
            reinterpret_cast<decltype(&ca_context_create)>(library.resolve("ca_context_create"));
        play = reinterpret_cast<decltype(&ca_context_play)>(library.resolve("ca_context_play"));
        if (create && play)
            create(&context);
    }

    decltype(&ca_context_play) play = nullptr;
    ca_context *context = nullptr;
};

// Without the library, the sound, or anything to play it on, it fails: that is silence.
void playNow(const char *name, const QByteArray &theme, const QByteArray &programName) {
    static const Player player;
    if (!player.context)
        return;
    player.play(player.context, 0, CA_PROP_EVENT_ID, name, CA_PROP_MEDIA_ROLE, "event",
                CA_PROP_CANBERRA_XDG_THEME_NAME, theme.constData(), CA_PROP_APPLICATION_NAME,
                programName.constData(), CA_PROP_APPLICATION_ID, "app.tembra.Tembra", nullptr);
}

} // namespace

CanberraSounds::CanberraSounds(EventSoundSetting setting)
    : m_setting(std::move(setting)),
      m_queue(std::make_unique<ThreadQueue>(QStringLiteral("Tembra.Sounds"))),
      m_turn(std::make_shared<QSemaphore>(1)) {}

CanberraSounds::~CanberraSounds() {
    // A queue ends when its job is done, which may be never: then it is left to the end of the process.
    if (!m_turn->tryAcquire(1, patienceMilliseconds))
        static_cast<void>(m_queue.release());
}

void CanberraSounds::play(Event event) {
    const EventSoundSetting::Value setting = m_setting.read();
    // While a server makes others wait, sounds do not gather for later.
    if (!setting.isEnabled || !m_turn->tryAcquire())
        return;
    m_queue->post([turn = m_turn, name = soundName(event), theme = setting.theme.toUtf8(),
                   programName = QCoreApplication::applicationName().toUtf8()] {
        playNow(name, theme, programName);
        turn->release();
    });
}

} // namespace tembra
