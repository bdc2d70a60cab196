#pragma once

#include <array>
#include <climits>

namespace tembra::fault {

// What a call works on: the path as text, as long as it lies beneath the folder that is watched.
class Place {
public:
    // By a descriptor of it.
    explicit Place(int descriptor);
    // By a path that is relative to a folder's descriptor; by the descriptor when there is none.
    Place(int folder, const char *path);

    [[nodiscard]] const char *text() const { return m_text.data(); }
    [[nodiscard]] bool isWatched() const;

private:
    std::array<char, 2 * PATH_MAX> m_text{};
};

enum class Fate { perform, dieBefore, dieAfter, fail };

// Counts the call, writes it down and tells what is to become of it. `code` is the errno of a failure.
[[nodiscard]] Fate fateOf(const char *call, const Place &place, int &code);
[[noreturn]] void die();

} // namespace tembra::fault
