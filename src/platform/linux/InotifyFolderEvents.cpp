#include "platform/linux/InotifyFolderEvents.h"

#include "base/FilePath.h"
#include "platform/linux/PollingWatch.h"
#include "platform/linux/TreeWatch.h"

#include <cerrno>
#include <sys/inotify.h>

namespace tembra {

namespace {

constexpr std::uint32_t entryMask = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
constexpr std::uint32_t directoryMask = entryMask | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF;

class DirectoryWatch final : public FolderEvents::Handle {
public:
    // Without names every entry counts.
    DirectoryWatch(std::optional<QSet<QByteArray>> names, std::function<void(std::uint32_t)> onEvents)
        : m_names(std::move(names)), m_onEvents(std::move(onEvents)) {}

    Result<void> start(InotifyInstance &instance, const QString &folder) {
        auto subscription = instance.watch(folder, directoryMask,
                                           [this](const InotifyInstance::Event &event) { receive(event); });
        if (!subscription)
            return failure(subscription.error());
        m_subscription = std::move(*subscription);
        return {};
    }

    void pollAsWell(Scheduler &scheduler, const QString &folder) {
        m_polling = std::make_unique<PollingWatch>(scheduler, folder, m_onEvents);
    }

private:
    void receive(const InotifyInstance::Event &event) {
        if (m_names && !event.name.isEmpty() && !m_names->contains(event.name))
            return;
        const std::uint32_t bits = directoryEvents(event);
        if (bits == 0)
            return;
        // The callback may drop this watch: nothing of it is touched afterwards.
        const auto onEvents = m_onEvents;
        onEvents(bits);
    }

    static std::uint32_t directoryEvents(const InotifyInstance::Event &event) {
        std::uint32_t bits = 0;
        if (event.mask & (entryMask | IN_Q_OVERFLOW))
            bits |= FolderEvents::write;
        if ((event.mask & IN_ATTRIB) && event.name.isEmpty())
            bits |= FolderEvents::attrib;
        if (event.mask & IN_MOVE_SELF)
            bits |= FolderEvents::rename;
        if (event.mask & IN_DELETE_SELF)
            bits |= FolderEvents::remove;
        if (event.mask & IN_UNMOUNT)
            bits |= FolderEvents::revoke;
        return bits;
    }

    const std::optional<QSet<QByteArray>> m_names;
    const std::function<void(std::uint32_t)> m_onEvents;
    std::unique_ptr<InotifyInstance::Subscription> m_subscription;
    std::unique_ptr<PollingWatch> m_polling;
};

bool isExhausted(const Error &error) {
    return error.code == ENOSPC || error.code == EMFILE || error.code == ENFILE || error.code == ENOSYS;
}

} // namespace

InotifyFolderEvents::InotifyFolderEvents(const LinuxFileFactsReader &reader, Scheduler &scheduler)
    : m_reader(reader), m_scheduler(scheduler) {}

Result<std::unique_ptr<FolderEvents::Handle>>
InotifyFolderEvents::watchDirectory(const QString &folder, std::function<void(std::uint32_t)> onEvents) {
    return watch(folder, std::nullopt, std::move(onEvents));
}

Result<std::unique_ptr<FolderEvents::Handle>>
InotifyFolderEvents::watchEntries(const QString &folder, const QSet<QString> &names,
                                  std::function<void(std::uint32_t)> onEvents) {
    QSet<QByteArray> entries;
    for (const QString &name : names)
        entries.insert(pathBytes(name));
    return watch(folder, std::move(entries), std::move(onEvents));
}

Result<std::unique_ptr<FolderEvents::Handle>>
InotifyFolderEvents::watch(const QString &folder, std::optional<QSet<QByteArray>> names,
                           std::function<void(std::uint32_t)> onEvents) {
    const auto volume = m_reader.volumeOf(folder);
    if (!volume)
        return failure(volume.error());
    auto watch = std::make_unique<DirectoryWatch>(std::move(names), std::move(onEvents));
    const auto started = watch->start(m_instance, folder);
    if (!started && !isExhausted(started.error()))
        return failure(started.error());
    if (!started)
        qWarning("The system has no more folder watches to give (%s); %s is looked at every few seconds",
                 qUtf8Printable(started.error().message), qUtf8Printable(folder));
    if (!started || volume->isRemote)
        watch->pollAsWell(m_scheduler, folder);
    return watch;
}

Result<std::unique_ptr<FolderEvents::Handle>>
InotifyFolderEvents::watchTree(const QString &folder, bool recursive, std::chrono::nanoseconds latency,
                               std::function<void(std::vector<TreeEvent>)> onEvents) {
    auto watch = std::make_unique<TreeWatch>(m_instance, m_scheduler, m_lastId, folder, recursive, latency,
                                             std::move(onEvents));
    if (const auto started = watch->start(); !started)
        return failure(started.error());
    return watch;
}

} // namespace tembra
