#include "platform/linux/InotifyInstance.h"

#include "base/FilePath.h"
#include "platform/linux/PosixError.h"

#include <algorithm>
#include <array>
#include <sys/inotify.h>

namespace tembra {

namespace {

constexpr std::uint32_t alwaysTold = IN_IGNORED | IN_UNMOUNT | IN_Q_OVERFLOW;

} // namespace

InotifyInstance::Subscription::Subscription(InotifyInstance &instance, int watch,
                                            std::shared_ptr<const Receiver> receiver)
    : m_instance(instance), m_watch(watch), m_receiver(std::move(receiver)) {}

InotifyInstance::Subscription::~Subscription() {
    m_receiver.reset();
    m_instance.drop(m_watch);
}

InotifyInstance::InotifyInstance() : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (!m_descriptor.isOpen()) {
        m_openError = errno;
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

InotifyInstance::~InotifyInstance() = default;

Result<std::unique_ptr<InotifyInstance::Subscription>>
InotifyInstance::watch(const QString &folder, std::uint32_t mask, Receiver receiver) {
    if (!m_descriptor.isOpen())
        return failure(posixError(m_openError));
    const int number = ::inotify_add_watch(m_descriptor.number(), pathBytes(folder).constData(),
                                           mask | IN_ONLYDIR | IN_MASK_ADD);
    if (number < 0)
        return failure(posixError());
    auto shared = std::make_shared<const Receiver>(std::move(receiver));
    m_watches[number].push_back({mask, shared});
    return std::make_unique<Subscription>(*this, number, std::move(shared));
}

void InotifyInstance::drop(int watch) {
    const auto found = m_watches.find(watch);
    if (found == m_watches.end())
        return;
    std::erase_if(found->second, [](const Entry &entry) { return entry.receiver.expired(); });
    if (!found->second.empty())
        return;
    m_watches.erase(found);
    ::inotify_rm_watch(m_descriptor.number(), watch);
}

void InotifyInstance::read() {
    // What does not fit comes with the next turn of the event loop, so that a flood of events does not hold
    // the thread.
    alignas(inotify_event) std::array<char, 64 * 1024> buffer;
    const ssize_t length = ::read(m_descriptor.number(), buffer.data(), buffer.size());
    for (std::size_t at = 0; length > 0 && at < static_cast<std::size_t>(length);) {
        const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + at);
        at += sizeof(inotify_event) + event->len;
        const Event told{event->mask, event->len > 0 ? QByteArray(event->name) : QByteArray()};
        if (event->mask & IN_Q_OVERFLOW)
            dispatchToAll(told);
        else
            dispatch(event->wd, told);
    }
}

void InotifyInstance::dispatch(int watch, const Event &event) {
    const auto found = m_watches.find(watch);
    if (found == m_watches.end())
        return;
    const std::vector<Entry> entries = found->second;
    // The kernel has ended this watch already.
    if (event.mask & IN_IGNORED)
        m_watches.erase(found);
    for (const Entry &entry : entries) {
        const auto receiver = entry.receiver.lock();
        if (receiver && (event.mask & (entry.mask | alwaysTold)))
            (*receiver)(event);
    }
}

void InotifyInstance::dispatchToAll(const Event &event) {
    std::vector<int> watches;
    for (const auto &[number, entries] : m_watches)
        watches.push_back(number);
    for (const int number : watches)
        dispatch(number, event);
}

} // namespace tembra
