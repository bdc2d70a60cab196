#pragma once

#include "base/Scheduler.h"
#include "platform/FolderEvents.h"

#include <QString>

#include <functional>
#include <memory>

namespace tembra {

// Finds out whether changes in a folder are noticed, by a hidden file that is gone again afterwards. Main
// thread.
class FolderProbe {
public:
    FolderProbe(FolderEvents &events, Scheduler &scheduler) : m_events(events), m_scheduler(scheduler) {}
    ~FolderProbe() { cancel(); }
    FolderProbe(const FolderProbe &) = delete;
    FolderProbe &operator=(const FolderProbe &) = delete;

    // Tells whether it was noticed within three seconds, at the latest then. One at a time.
    void start(const QString &folder, std::function<void(bool wasNoticed)> told);

    // Nobody is told any more.
    void cancel();

private:
    void tell(bool wasNoticed);

    FolderEvents &m_events;
    Scheduler &m_scheduler;
    std::function<void(bool)> m_told;
    QString m_file;
    std::unique_ptr<FolderEvents::Handle> m_watch;
    WorkItem m_answer;
};

} // namespace tembra
