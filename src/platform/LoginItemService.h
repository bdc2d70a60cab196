#pragma once

#include "base/Result.h"

#include <functional>

namespace tembra {

// Whether the desktop starts the program when the user logs in. A value of operations. Main thread.
struct LoginItemService {
    enum class Status {
        notRegistered,
        enabled,
        // The program is registered, but was switched off in the desktop's own settings.
        requiresApproval,
        // What is to be started is not there.
        notFound,
    };

    std::function<Status()> status;
    // Errors: one sentence, and everything stays as it was.
    std::function<Result<void>()> registerItem;
    std::function<Result<void>()> unregisterItem;
    // Where the user can allow it again.
    std::function<Result<void>()> openApprovalSettings;
};

} // namespace tembra
