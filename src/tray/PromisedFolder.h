#pragma once

#include "base/Scheduler.h"
#include "platform/FolderEvents.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace tembra {

// Waits for the files that a program promised to write into a folder: some say so first and write then, and
// under other names. Main thread; ends the waiting when it goes.
class PromisedFolder {
public:
    // `onFilled` is called once, with what is in the folder when nothing has come for a while, or with
    // nothing when nothing came at all. It may drop this.
    PromisedFolder(FolderEvents &events, Scheduler &scheduler, const QString &folder,
                   std::function<void(const QStringList &paths)> onFilled);

private:
    void finish();

    Scheduler &m_scheduler;
    const QString m_folder;
    std::function<void(const QStringList &)> m_onFilled;
    std::unique_ptr<FolderEvents::Handle> m_watch;
    WorkItem m_end;
};

} // namespace tembra
