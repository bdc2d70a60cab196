#pragma once

#include <qtestsupport_core.h>

#include <functional>

namespace tembra {

// Runs the event loop until the condition holds; gives up long after it should have.
inline bool eventually(const std::function<bool()> &condition) {
    constexpr int deadline = 20'000;
    return QTest::qWaitFor(condition, deadline);
}

} // namespace tembra
