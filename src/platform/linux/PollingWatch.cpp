#include "platform/linux/PollingWatch.h"

#include "base/FilePath.h"

#include <sys/stat.h>

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr auto interval = 5s;
constexpr auto tolerance = 1s;

// Changes whenever an entry comes, goes or gets another name; -1 when the folder is not there.
std::int64_t changeTime(const QByteArray &folder) {
    struct stat facts {};
    if (::stat(folder.constData(), &facts) != 0 || !S_ISDIR(facts.st_mode))
        return -1;
    return facts.st_ctim.tv_sec * 1'000'000'000 + facts.st_ctim.tv_nsec;
}

} // namespace

PollingWatch::PollingWatch(Scheduler &scheduler, const QString &folder,
                           std::function<void(std::uint32_t)> onEvents)
    : m_scheduler(scheduler),
      m_folder(pathBytes(folder)),
      m_onEvents(std::move(onEvents)),
      m_lastChange(changeTime(m_folder)) {
    wait();
}

void PollingWatch::wait() {
    m_work = m_scheduler.schedule(
        interval, [this] { look(); }, tolerance);
}

void PollingWatch::look() {
    const std::int64_t change = changeTime(m_folder);
    const std::int64_t before = std::exchange(m_lastChange, change);
    wait();
    if (change == before)
        return;
    // The callback may drop this watch: nothing of it is touched afterwards.
    const auto onEvents = m_onEvents;
    onEvents(change < 0 ? FolderEvents::remove : FolderEvents::write);
}

} // namespace tembra
