#pragma once

#include "platform/Workspace.h"
#include "platform/linux/desktop/FileManager.h"
#include "platform/linux/desktop/MountWatch.h"
#include "platform/linux/desktop/SleepWatch.h"
#include "platform/linux/desktop/X11Session.h"

namespace tembra {

// The session as the desktop's services, the kernel and, on X11, the window manager tell of it. Nothing is
// watched before somebody observes.
class LinuxWorkspace final : public Workspace {
public:
    // Without a connection, virtual desktops are not told of and windows count as composed.
    explicit LinuxWorkspace(std::shared_ptr<X11Connection> connection);
    ~LinuxWorkspace() override;

    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(Event)> onEvent) override;
    [[nodiscard]] bool isComposited() const override;
    Result<void> reveal(const QStringList &paths) override;
    Result<void> openFolder(const QString &path) override;
    [[nodiscard]] std::vector<Application> applicationsFor(const QStringList &paths) const override;
    Result<void> open(const QStringList &paths, const QString &identifier) override;
    Result<void> openLink(const QUrl &url) override;

private:
    struct Watches;

    const std::shared_ptr<X11Connection> m_connection;
    FileManager m_fileManager;
    Observers<Observation, Event> m_observers;
    std::unique_ptr<Watches> m_watches;
};

} // namespace tembra
