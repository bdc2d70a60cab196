#pragma once

#include "settings/DisplayPreference.h"
#include "shelf/ShelfDisplay.h"

#include <optional>
#include <vector>

namespace tembra {

// On which display the shelf opens, and on which it did.
class ShelfDisplaySelection {
public:
    std::optional<std::uint32_t> chosenID;

    // The display to open on for a pointer at that place; nothing when there is none.
    [[nodiscard]] static std::optional<ShelfDisplay>
    opening(const std::vector<ShelfDisplay> &displays, DisplayPreference preference, ScreenPoint pointer);
    // Those that the preference admits.
    [[nodiscard]] static std::vector<ShelfDisplay> admitted(const std::vector<ShelfDisplay> &displays,
                                                            DisplayPreference preference);
};

} // namespace tembra
