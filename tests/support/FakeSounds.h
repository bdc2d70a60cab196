#pragma once

#include "platform/Sounds.h"

#include <vector>

namespace tembra {

// Remembers what was to be heard.
class FakeSounds final : public Sounds {
public:
    std::vector<Event> played;

    void play(Event event) override { played.push_back(event); }
};

} // namespace tembra
