#include "platform/linux/desktop/LinuxWorkspace.h"

#include "platform/linux/desktop/DesktopApplications.h"

namespace tembra {

struct LinuxWorkspace::Watches {
    Watches(const std::shared_ptr<X11Connection> &connection, const std::function<void(Event)> &tell)
        : sleep([tell](bool isAboutToSleep) { tell(isAboutToSleep ? Event::willSleep : Event::didWake); }),
          mounts([tell] { tell(Event::didMount); }, [tell] { tell(Event::didUnmount); }) {
        if (connection) {
            session.emplace(
                connection, [tell] { tell(Event::activeSpaceChanged); },
                [tell] { tell(Event::compositingChanged); });
        }
    }

    SleepWatch sleep;
    MountWatch mounts;
    std::optional<X11Session> session;
};

LinuxWorkspace::LinuxWorkspace(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {}

LinuxWorkspace::~LinuxWorkspace() = default;

std::unique_ptr<Workspace::Observation> LinuxWorkspace::observe(std::function<void(Event)> onEvent) {
    if (!m_watches) {
        m_watches =
            std::make_unique<Watches>(m_connection, [this](Event event) { m_observers.notify(event); });
    }
    return m_observers.add(std::move(onEvent));
}

bool LinuxWorkspace::isComposited() const {
    return !m_connection || X11Session::isComposited(*m_connection);
}

Result<void> LinuxWorkspace::reveal(const QStringList &paths) {
    return m_fileManager.reveal(paths);
}

Result<void> LinuxWorkspace::openFolder(const QString &path) {
    return m_fileManager.openFolder(path);
}

std::vector<Workspace::Application> LinuxWorkspace::applicationsFor(const QStringList &paths) const {
    return DesktopApplications::applicationsFor(paths);
}

Result<void> LinuxWorkspace::open(const QStringList &paths, const QString &identifier) {
    return DesktopApplications::open(paths, identifier);
}

Result<void> LinuxWorkspace::openLink(const QUrl &url) {
    return DesktopApplications::openLink(url);
}

} // namespace tembra
