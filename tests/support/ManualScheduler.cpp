#include "support/ManualScheduler.h"

#include <algorithm>
#include <utility>

namespace tembra {

struct ManualScheduler::Entry {
    Uptime due;
    Duration tolerance;
    std::function<void()> work;
};

class ManualScheduler::EntryState final : public WorkItem::State {
public:
    explicit EntryState(std::shared_ptr<Entry> entry) : m_entry(std::move(entry)) {}
    void cancel() override { m_entry->work = nullptr; }
    [[nodiscard]] bool isPending() const override { return m_entry->work != nullptr; }

private:
    std::shared_ptr<Entry> m_entry;
};

WorkItem ManualScheduler::schedule(Duration delay, std::function<void()> work, Duration tolerance) {
    auto entry =
        std::make_shared<Entry>(Entry{m_now + std::max(delay, Duration::zero()), tolerance, std::move(work)});
    m_entries.push_back(entry);
    return WorkItem(std::make_shared<EntryState>(std::move(entry)));
}

void ManualScheduler::post(std::function<void()> work) {
    const std::lock_guard lock(m_mutex);
    m_posted.push_back(std::move(work));
}

void ManualScheduler::settle() {
    advance(Duration::zero());
}

void ManualScheduler::advance(Duration duration) {
    const Uptime end = m_now + duration;
    runPosted();
    while (const auto entry = earliestDueBy(end)) {
        m_now = std::max(m_now, entry->due);
        const auto work = std::exchange(entry->work, nullptr);
        work();
        runPosted();
    }
    m_now = end;
}

void ManualScheduler::runPosted() {
    while (true) {
        std::function<void()> work;
        {
            const std::lock_guard lock(m_mutex);
            if (m_posted.empty())
                return;
            work = std::move(m_posted.front());
            m_posted.pop_front();
        }
        work();
    }
}

std::shared_ptr<ManualScheduler::Entry> ManualScheduler::earliestDueBy(Uptime time) {
    std::erase_if(m_entries, [](const auto &entry) { return !entry->work; });
    const auto earliest = std::ranges::min_element(
        m_entries, {}, [](const std::shared_ptr<Entry> &entry) { return entry->due; });
    if (earliest == m_entries.end() || (*earliest)->due > time)
        return nullptr;
    return *earliest;
}

int ManualScheduler::pendingCount() const {
    return static_cast<int>(
        std::ranges::count_if(m_entries, [](const auto &entry) { return entry->work != nullptr; }));
}

std::shared_ptr<ManualScheduler::Entry> ManualScheduler::next() const {
    std::shared_ptr<Entry> next;
    for (const auto &entry : m_entries) {
        if (entry->work && (!next || entry->due < next->due))
            next = entry;
    }
    return next;
}

Scheduler::Duration ManualScheduler::nextDelay() const {
    const auto entry = next();
    return entry ? entry->due - m_now : Duration{-1};
}

Scheduler::Duration ManualScheduler::nextTolerance() const {
    const auto entry = next();
    return entry ? entry->tolerance : Duration{-1};
}

} // namespace tembra
