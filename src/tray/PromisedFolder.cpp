#include "tray/PromisedFolder.h"

#include <QDir>

#include <utility>

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 60s;
constexpr auto pause = 500ms;

} // namespace

PromisedFolder::PromisedFolder(FolderEvents &events, Scheduler &scheduler, const QString &folder,
                               std::function<void(const QStringList &)> onFilled)
    : m_scheduler(scheduler),
      m_folder(folder),
      m_onFilled(std::move(onFilled)),
      m_end(scheduler.schedule(patience, [this] { finish(); })) {
    auto watch = events.watchDirectory(
        folder, [this](std::uint32_t) { m_end = m_scheduler.schedule(pause, [this] { finish(); }); });
    if (watch)
        m_watch = *std::move(watch);
}

void PromisedFolder::finish() {
    QStringList paths;
    const QDir folder(m_folder);
    const QStringList names =
        folder.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        paths.append(folder.filePath(name));
    const auto onFilled = std::exchange(m_onFilled, nullptr);
    m_watch.reset();
    onFilled(paths);
}

} // namespace tembra
