#include "platform/linux/desktop/MountWatch.h"

#include <QObject>

#include <algorithm>
#include <fcntl.h>

namespace tembra {

namespace {

bool comesBefore(const MountEntry &one, const MountEntry &other) {
    return std::tie(one.mountPoint, one.id) < std::tie(other.mountPoint, other.id);
}

std::vector<MountEntry> sortedMountTable() {
    std::vector<MountEntry> table = readMountTable();
    std::ranges::sort(table, comesBefore);
    return table;
}

} // namespace

MountWatch::MountWatch(std::function<void()> onMount, std::function<void()> onUnmount)
    : m_onMount(std::move(onMount)),
      m_onUnmount(std::move(onUnmount)),
      m_table(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)),
      // The kernel marks a changed table as urgent data.
      m_changes(m_table.number(), QSocketNotifier::Exception),
      m_known(sortedMountTable()) {
    QObject::connect(&m_changes, &QSocketNotifier::activated, &m_changes, [this] { compare(); });
}

void MountWatch::compare() {
    const std::vector<MountEntry> before = std::exchange(m_known, sortedMountTable());
    const bool hasNew = !std::ranges::includes(before, m_known, comesBefore);
    const bool hasLost = !std::ranges::includes(m_known, before, comesBefore);
    // Copies: either may end the watch.
    const auto onMount = m_onMount;
    const auto onUnmount = m_onUnmount;
    if (hasLost)
        onUnmount();
    if (hasNew)
        onMount();
}

} // namespace tembra
