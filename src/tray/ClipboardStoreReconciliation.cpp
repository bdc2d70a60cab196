// The tray follows its files.

#include "base/Background.h"
#include "base/MainThread.h"
#include "tray/ClipboardStore.h"

#include <QGuiApplication>

#include <algorithm>
#include <iterator>

namespace tembra {

using namespace std::chrono_literals;

namespace {

// A burst of events is one change to the user.
constexpr auto debounce = 150ms;

} // namespace

// The entries as they were at the beginning, what was found of them, and those that nothing is known of.
struct ClipboardStore::Pass {
    std::vector<ClipboardEntry> entries;
    std::size_t next = 0;
    std::vector<Outcome> outcomes;
    std::vector<ClipboardEntry> lost;
};

void ClipboardStore::startMonitoring() {
    requireMainThread();
    if (m_activation)
        return;
    m_activation = std::make_unique<QObject>();
    if (qGuiApp)
        QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, m_activation.get(),
                         [this](Qt::ApplicationState state) {
                             if (state == Qt::ApplicationActive)
                                 scheduleReconciliation();
                         });
    m_workspace = m_services.workspace.observe([this](Workspace::Event event) {
        const bool isMount = event == Workspace::Event::didMount || event == Workspace::Event::didUnmount;
        // The same paths may lead elsewhere now.
        if (isMount)
            m_fileWatches.clear();
        if (isMount || event == Workspace::Event::didWake)
            scheduleReconciliation();
    });
    reconcileFiles();
    updateFileWatches();
}

void ClipboardStore::stopMonitoring() {
    requireMainThread();
    m_activation.reset();
    m_workspace.reset();
    m_fileWatches.clear();
    m_reconciliation.cancel();
}

void ClipboardStore::scheduleReconciliation() {
    requireMainThread();
    if (m_entries.empty())
        return;
    m_reconciliation = m_services.scheduler.schedule(debounce, [this] { reconcileFiles(); });
}

void ClipboardStore::reconcileFiles() {
    requireMainThread();
    if (shouldDeferReconciliation())
        return;
    if (m_reconciling) {
        m_reconcileAgain = true;
        return;
    }
    if (m_entries.empty())
        return;
    m_reconciling = true;
    const auto pass = std::make_shared<Pass>(Pass{.entries = m_entries});
    const auto step = [this, pass] {
        inspectNext(*pass);
        return pass->next < pass->entries.size();
    };
    m_pass.start(step, [this, pass] { finishPass(*pass); });
}

void ClipboardStore::inspectNext(Pass &pass) {
    const ClipboardEntry &entry = pass.entries[pass.next++];
    const ClipboardFileState state = inspectEntry(entry);
    if (m_inspector.needsSearch(entry, state)) {
        // Greyed until it is found.
        ClipboardEntry &lost = pass.lost.emplace_back(entry);
        lost.available = state == ClipboardFileState::available;
        if (lost.available != entry.available)
            pass.outcomes.push_back({entry, state, entry});
        return;
    }
    const ClipboardEntry now = state == ClipboardFileState::available ? m_inspector.refreshed(entry) : entry;
    const bool isAvailable = state == ClipboardFileState::available;
    if (state == ClipboardFileState::removed || isAvailable != entry.available || !(now == entry))
        pass.outcomes.push_back({entry, state, now});
}

void ClipboardStore::finishPass(const Pass &pass) {
    m_reconciling = false;
    if (!shouldDeferReconciliation()) {
        apply(pass.outcomes);
        searchFor(pass.lost);
    }
    if (std::exchange(m_reconcileAgain, false))
        scheduleReconciliation();
}

void ClipboardStore::searchFor(const std::vector<ClipboardEntry> &lost) {
    if (lost.empty())
        return;
    if (m_searching) {
        m_searchAgain = true;
        return;
    }
    m_searching = true;
    performInBackground(
        m_services.queue, m_services.scheduler, m_life.ticket(),
        [inspector = m_inspector, lost] {
            std::vector<Outcome> outcomes;
            std::ranges::transform(lost, std::back_inserter(outcomes), [&](const ClipboardEntry &entry) {
                const auto found = inspector.search(entry);
                return Outcome{entry, found.state, found.entry};
            });
            return outcomes;
        },
        [this](const std::vector<Outcome> &outcomes) {
            m_searching = false;
            if (!shouldDeferReconciliation())
                apply(outcomes);
            if (std::exchange(m_searchAgain, false))
                scheduleReconciliation();
        });
}

void ClipboardStore::apply(const std::vector<Outcome> &outcomes) {
    QHash<QUuid, const Outcome *> current;
    for (const Outcome &outcome : outcomes)
        current.insert(outcome.before.id, &outcome);
    QSet<QUuid> removed;
    bool isDifferent = false;
    for (ClipboardEntry &entry : m_entries) {
        const Outcome *const outcome = current.value(entry.id);
        if (!outcome || !(outcome->before == entry))
            continue;
        if (outcome->state == ClipboardFileState::removed)
            removed.insert(entry.id);
        entry = outcome->now;
        entry.available = outcome->state == ClipboardFileState::available;
        isDifferent |= !(entry == outcome->before) || outcome->state == ClipboardFileState::removed;
    }
    removeEntries(removed);
    if (isDifferent)
        changed();
}

void ClipboardStore::updateFileWatches() {
    // Only while monitoring.
    if (!m_activation)
        return;
    QSet<QString> paths;
    for (const ClipboardEntry &entry : m_entries)
        paths.insert(entry.lastKnownPath);
    m_fileWatches.watch(paths);
}

} // namespace tembra
