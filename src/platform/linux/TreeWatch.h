#pragma once

#include "base/Scheduler.h"
#include "platform/FolderEvents.h"
#include "platform/linux/InotifyInstance.h"

#include <map>
#include <string>

namespace tembra {

// A tree stream over inotify: one watch for the folder, one for each subfolder when it is recursive, and one
// for each folder above it, since their renaming moves the tree as well. Main thread.
class TreeWatch final : public FolderEvents::Handle {
public:
    using OnEvents = std::function<void(std::vector<TreeEvent>)>;

    // `lastId` is the last event id given out, shared by all streams.
    TreeWatch(InotifyInstance &instance, Scheduler &scheduler, std::uint64_t &lastId, QString folder,
              bool recursive, std::chrono::nanoseconds latency, OnEvents onEvents);

    // Error: "POSIX" when not even the folder itself can be watched.
    [[nodiscard]] Result<void> start();

private:
    Result<void> watchFolder(const QString &folder);
    void watchBelow(const QString &folder);
    void watchAncestors();
    void forgetBelow(const QString &folder);
    void receive(const QString &folder, const InotifyInstance::Event &event);
    void receiveOverflow();
    void receiveAboutFolder(const QString &folder, std::uint32_t mask);
    void receiveAboutDirectory(const QString &path, std::uint32_t mask);
    void add(const QString &path, std::uint32_t flags);
    void deliver();

    InotifyInstance &m_instance;
    Scheduler &m_scheduler;
    std::uint64_t &m_lastId;
    const QString m_folder;
    const bool m_recursive;
    const std::chrono::nanoseconds m_latency;
    const OnEvents m_onEvents;
    std::map<QString, std::unique_ptr<InotifyInstance::Subscription>> m_subscriptions;
    std::vector<std::unique_ptr<InotifyInstance::Subscription>> m_ancestors;
    std::vector<TreeEvent> m_pending;
    WorkItem m_delivery;
    bool m_toldOfLimit = false;
};

} // namespace tembra
