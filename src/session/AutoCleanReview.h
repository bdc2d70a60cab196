#pragma once

namespace tembra {

// Whether the user has been told how much auto-clean would move and has let it. The stored value.
enum class AutoCleanReview { notReviewed = 0, shown = 1, reviewed = 2 };

} // namespace tembra
