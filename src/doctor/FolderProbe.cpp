#include "doctor/FolderProbe.h"

#include "doctor/ProbeFile.h"

#include <QFile>

namespace tembra {

namespace {

constexpr std::chrono::seconds patience{3};

} // namespace

void FolderProbe::start(const QString &folder, std::function<void(bool)> told) {
    cancel();
    m_told = std::move(told);
    auto watch = m_events.watchDirectory(folder, [this](std::uint32_t events) {
        if (events & FolderEvents::write)
            m_answer = m_scheduler.schedule({}, [this] { tell(true); });
    });
    const auto file = watch ? makeProbeFile(folder) : std::nullopt;
    if (watch)
        m_watch = std::move(*watch);
    m_file = file.value_or(QString());
    m_answer = m_scheduler.schedule(file ? patience : std::chrono::seconds::zero(), [this] { tell(false); });
}

void FolderProbe::tell(bool wasNoticed) {
    const auto told = std::exchange(m_told, {});
    cancel();
    told(wasNoticed);
}

void FolderProbe::cancel() {
    m_watch.reset();
    m_answer.cancel();
    if (!m_file.isEmpty())
        QFile::remove(std::exchange(m_file, {}));
}

} // namespace tembra
