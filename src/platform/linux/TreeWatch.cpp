#include "platform/linux/TreeWatch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace tembra {

namespace {

// Writing is not told, only its end: an unfinished file is of no interest, and recordings write all the time.
constexpr std::uint32_t treeMask = IN_CREATE | IN_DELETE | IN_CLOSE_WRITE | IN_ATTRIB | IN_MOVED_FROM |
                                   IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;

std::uint32_t kindFlags(const QString &path, std::uint32_t mask) {
    if (mask & IN_ISDIR)
        return TreeEvent::itemIsDirectory;
    struct stat facts {};
    if (::lstat(QFile::encodeName(path).constData(), &facts) != 0)
        return TreeEvent::itemIsFile;
    if (S_ISLNK(facts.st_mode))
        return TreeEvent::itemIsSymlink;
    return S_ISREG(facts.st_mode) && facts.st_nlink > 1 ? TreeEvent::itemIsFile | TreeEvent::itemIsHardlink
                                                        : TreeEvent::itemIsFile;
}

std::uint32_t changeFlags(std::uint32_t mask) {
    std::uint32_t flags = 0;
    if (mask & IN_CREATE)
        flags |= TreeEvent::itemCreated;
    if (mask & IN_DELETE)
        flags |= TreeEvent::itemRemoved;
    if (mask & IN_CLOSE_WRITE)
        flags |= TreeEvent::itemModified;
    if (mask & IN_ATTRIB)
        flags |= TreeEvent::itemInodeMetaModified | TreeEvent::itemXattrModified;
    if (mask & (IN_MOVED_FROM | IN_MOVED_TO))
        flags |= TreeEvent::itemRenamed;
    return flags;
}

} // namespace

TreeWatch::TreeWatch(InotifyInstance &instance, Scheduler &scheduler, std::uint64_t &lastId, QString folder,
                     bool recursive, std::chrono::nanoseconds latency, OnEvents onEvents)
    : m_instance(instance),
      m_scheduler(scheduler),
      m_lastId(lastId),
      m_folder(std::move(folder)),
      m_recursive(recursive),
      m_latency(latency),
      m_onEvents(std::move(onEvents)) {}

Result<void> TreeWatch::start() {
    if (auto watched = watchFolder(m_folder); !watched)
        return watched;
    watchAncestors();
    if (m_recursive)
        watchBelow(m_folder);
    return {};
}

Result<void> TreeWatch::watchFolder(const QString &folder) {
    auto subscription = m_instance.watch(
        folder, treeMask, [this, folder](const InotifyInstance::Event &event) { receive(folder, event); });
    if (!subscription)
        return failure(subscription.error());
    m_subscriptions[folder] = std::move(*subscription);
    return {};
}

void TreeWatch::watchBelow(const QString &folder) {
    const QDir directory(folder);
    const QStringList names = directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString path = directory.filePath(name);
        const auto watched = watchFolder(path);
        if (watched) {
            watchBelow(path);
        } else if (watched.error().code == ENOSPC && !m_toldOfLimit) {
            m_toldOfLimit = true;
            qWarning("The system's limit of folder watches is reached; not every folder below %s is watched",
                     qUtf8Printable(m_folder));
            add(m_folder, TreeEvent::mustScanSubdirectories | TreeEvent::userDropped);
        }
    }
}

void TreeWatch::watchAncestors() {
    for (QString path = m_folder; path != u"/";) {
        path = QFileInfo(path).path();
        // A folder that may not be read cannot be watched; its renaming then goes unnoticed.
        if (auto watched = m_instance.watch(path, IN_MOVE_SELF, [this](const InotifyInstance::Event &event) {
                if (event.mask & IN_MOVE_SELF)
                    add(m_folder, TreeEvent::rootChanged);
            }))
            m_ancestors.push_back(std::move(*watched));
    }
}

void TreeWatch::forgetBelow(const QString &folder) {
    std::erase_if(m_subscriptions, [&folder](const auto &entry) {
        return entry.first == folder || entry.first.startsWith(folder + u'/');
    });
}

void TreeWatch::receive(const QString &folder, const InotifyInstance::Event &event) {
    if (event.mask & IN_Q_OVERFLOW) {
        if (folder == m_folder)
            receiveOverflow();
        return;
    }
    if (event.name.isEmpty())
        return receiveAboutFolder(folder, event.mask);
    const QString path = folder + u'/' + QFile::decodeName(event.name);
    if ((event.mask & IN_ISDIR) && m_recursive)
        receiveAboutDirectory(path, event.mask);
    add(path, changeFlags(event.mask) | kindFlags(path, event.mask));
}

// Subfolders may have come, gone and moved unseen.
void TreeWatch::receiveOverflow() {
    std::erase_if(m_subscriptions, [this](const auto &entry) { return entry.first != m_folder; });
    if (m_recursive)
        watchBelow(m_folder);
    add(m_folder, TreeEvent::mustScanSubdirectories | TreeEvent::kernelDropped);
}

void TreeWatch::receiveAboutFolder(const QString &folder, std::uint32_t mask) {
    if (folder != m_folder)
        return;
    if (mask & IN_UNMOUNT)
        add(m_folder, TreeEvent::unmount | TreeEvent::rootChanged);
    else if (mask & (IN_DELETE_SELF | IN_MOVE_SELF))
        add(m_folder, TreeEvent::rootChanged);
}

void TreeWatch::receiveAboutDirectory(const QString &path, std::uint32_t mask) {
    if (mask & (IN_DELETE | IN_MOVED_FROM))
        forgetBelow(path);
    if ((mask & (IN_CREATE | IN_MOVED_TO)) && watchFolder(path))
        watchBelow(path);
}

void TreeWatch::add(const QString &path, std::uint32_t flags) {
    m_pending.push_back({path, flags, ++m_lastId});
    if (!m_delivery.isPending())
        m_delivery = m_scheduler.schedule(m_latency, [this] { deliver(); });
}

// The callback may drop the stream: nothing of it is touched afterwards.
void TreeWatch::deliver() {
    const OnEvents onEvents = m_onEvents;
    onEvents(std::exchange(m_pending, {}));
}

} // namespace tembra
