#pragma once

#include "platform/linux/Descriptor.h"
#include "platform/linux/MountTable.h"

#include <QSocketNotifier>

#include <functional>

namespace tembra {

// Tells of file systems that were mounted or unmounted. Main thread.
class MountWatch {
public:
    MountWatch(std::function<void()> onMount, std::function<void()> onUnmount);

private:
    void compare();

    const std::function<void()> m_onMount;
    const std::function<void()> m_onUnmount;
    const Descriptor m_table;
    QSocketNotifier m_changes;
    // In the order of their places.
    std::vector<MountEntry> m_known;
};

} // namespace tembra
