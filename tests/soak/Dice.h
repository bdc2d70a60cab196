#pragma once

#include <cstdint>
#include <random>

namespace tembra {

// The same throws for the same seed. A value.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_engine(seed) {}

    // From 0 to `count` - 1.
    [[nodiscard]] int below(int count) {
        return static_cast<int>(m_engine() % static_cast<std::uint64_t>(count));
    }
    [[nodiscard]] int between(int first, int last) { return first + below(last - first + 1); }
    // One time in so many.
    [[nodiscard]] bool onceIn(int times) { return below(times) == 0; }
    template <typename List>
    [[nodiscard]] auto &one(List &list) {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace tembra
