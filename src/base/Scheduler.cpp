#include "base/Scheduler.h"

namespace tembra {

WorkItem::WorkItem(std::shared_ptr<State> state) : m_state(std::move(state)) {}

WorkItem::~WorkItem() {
    cancel();
}

WorkItem &WorkItem::operator=(WorkItem &&other) noexcept {
    if (this != &other) {
        cancel();
        m_state = std::move(other.m_state);
    }
    return *this;
}

void WorkItem::cancel() {
    if (m_state)
        m_state->cancel();
    m_state.reset();
}

bool WorkItem::isPending() const {
    return m_state && m_state->isPending();
}

} // namespace tembra
