#pragma once

#include "base/Result.h"
#include "platform/linux/Descriptor.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tembra {

// One inotify descriptor for the whole program, see inotify(7): the system grants few of them. Several
// receivers may watch the same folder, each with its own mask. Main thread.
class InotifyInstance {
public:
    struct Event {
        std::uint32_t mask = 0;
        // The entry of the folder that it happened to; empty when it happened to the folder itself.
        QByteArray name;
    };
    using Receiver = std::function<void(const Event &)>;

    class Subscription {
    public:
        Subscription(InotifyInstance &instance, int watch, std::shared_ptr<const Receiver> receiver);
        ~Subscription();
        Subscription(const Subscription &) = delete;
        Subscription &operator=(const Subscription &) = delete;

    private:
        InotifyInstance &m_instance;
        const int m_watch;
        std::shared_ptr<const Receiver> m_receiver;
    };

    InotifyInstance();
    ~InotifyInstance();
    InotifyInstance(const InotifyInstance &) = delete;
    InotifyInstance &operator=(const InotifyInstance &) = delete;

    // Calls the receiver for events of the mask, and for the end of the watch (IN_IGNORED), an unmount and an
    // overflow of the queue in any case. Dropping the subscription ends it, also from within the receiver.
    // Error: "POSIX".
    [[nodiscard]] Result<std::unique_ptr<Subscription>> watch(const QString &folder, std::uint32_t mask,
                                                              Receiver receiver);

private:
    struct Entry {
        std::uint32_t mask = 0;
        std::weak_ptr<const Receiver> receiver;
    };

    void read();
    void dispatch(int watch, const Event &event);
    void dispatchToAll(const Event &event);
    void drop(int watch);

    Descriptor m_descriptor;
    int m_openError = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<int, std::vector<Entry>> m_watches;
};

} // namespace tembra
