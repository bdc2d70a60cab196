#pragma once

#include "base/ThreadQueue.h"
#include "platform/Sounds.h"
#include "platform/linux/desktop/EventSoundSetting.h"

#include <QSemaphore>

namespace tembra {

// Sounds through libcanberra, which finds them in the theme and plays them with what the machine has. It may
// wait for a sound server at any call, so that all of it happens on a thread of its own: neither the main
// thread nor the end of the program waits for a server that hangs. Silent when built without libcanberra.
class CanberraSounds final : public Sounds {
public:
    explicit CanberraSounds(EventSoundSetting setting);
    ~CanberraSounds() override;
    CanberraSounds(const CanberraSounds &) = delete;
    CanberraSounds &operator=(const CanberraSounds &) = delete;

    void play(Event event) override;

private:
    const EventSoundSetting m_setting;
    std::unique_ptr<ThreadQueue> m_queue;
    // Taken while a sound is being handed over.
    std::shared_ptr<QSemaphore> m_turn;
};

} // namespace tembra
