#pragma once

#include <QString>

namespace tembra {

// How well something works here, in the user's words: what is so, and the one setting or command that mends
// what is not as it should be.
struct Finding {
    enum class State {
        ok,
        // It works in part, or by another way.
        limited,
        broken,
    };

    State state = State::ok;
    QString text;
    // Empty where nothing is to be mended.
    QString remedy;

    bool operator==(const Finding &) const = default;
};

} // namespace tembra
