#include "platform/linux/desktop/CanberraSounds.h"

#include <QCoreApplication>
#include <QSemaphore>

#include <atomic>
#include <canberra.h>

namespace tembra {

namespace {

// How long the program's end lets the sound server say goodbye.
constexpr int patienceMilliseconds = 100;

// Names of the freedesktop.org Sound Naming Specification 0.1.
const char *soundName(Sounds::Event event) {
    switch (event) {
    case Sounds::Event::movedToTrash:
        return "trash-empty";
    case Sounds::Event::restored:
        return "device-added";
    }
    return "";
}

} // namespace

class CanberraSounds::Player {
public:
    explicit Player(QByteArray programName) : m_programName(std::move(programName)) {}

    // Whether the last sound has been handed over; claims the turn if so.
    [[nodiscard]] bool takeTurn() { return !m_isBusy.exchange(true); }

    void play(const char *name, const QByteArray &theme) {
        if (!m_context)
            open();
        // Without the sound, or without anything to play it on, it fails: that is silence.
        if (m_context) {
            ca_context_play(m_context.get(), 0, CA_PROP_EVENT_ID, name, CA_PROP_MEDIA_ROLE, "event",
                            CA_PROP_CANBERRA_XDG_THEME_NAME, theme.constData(), nullptr);
        }
        m_isBusy = false;
    }

private:
    struct Destroys {
        void operator()(ca_context *context) const { ca_context_destroy(context); }
    };

    void open() {
        ca_context *context = nullptr;
        if (ca_context_create(&context) != CA_SUCCESS)
            return;
        m_context.reset(context);
        ca_context_change_props(context, CA_PROP_APPLICATION_NAME, m_programName.constData(),
                                CA_PROP_APPLICATION_ID, "app.tembra.Tembra", nullptr);
        ca_context_open(context);
    }

    const QByteArray m_programName;
    std::atomic<bool> m_isBusy = false;
    std::unique_ptr<ca_context, Destroys> m_context;
};

CanberraSounds::CanberraSounds(EventSoundSetting setting)
    : m_setting(std::move(setting)),
      m_queue(std::make_unique<ThreadQueue>(QStringLiteral("Tembra.Sounds"))) {}

CanberraSounds::~CanberraSounds() {
    if (!m_player)
        return;
    const auto goodbye = std::make_shared<QSemaphore>();
    m_queue->post([player = std::move(m_player), goodbye]() mutable {
        player.reset();
        goodbye->release();
    });
    // A queue that waits for ever is left to the end of the process, which ends its thread as well.
    if (!goodbye->tryAcquire(1, patienceMilliseconds))
        static_cast<void>(m_queue.release());
}

void CanberraSounds::play(Event event) {
    const EventSoundSetting::Value setting = m_setting.read();
    if (!setting.isEnabled)
        return;
    if (!m_player)
        m_player = std::make_shared<Player>(QCoreApplication::applicationName().toUtf8());
    // While a server makes others wait, sounds do not gather for later.
    if (!m_player->takeTurn())
        return;
    m_queue->post([player = m_player, name = soundName(event), theme = setting.theme.toUtf8()] {
        player->play(name, theme);
    });
}

} // namespace tembra
