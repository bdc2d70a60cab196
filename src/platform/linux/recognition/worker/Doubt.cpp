#include "platform/linux/recognition/worker/Doubt.h"

#include <string_view>

namespace tembra::recognition {

namespace {

// Below this the engine is guessing.
constexpr double unsure = 70;
constexpr double guessing = 40;

// Letters and digits of any script; the signs of Latin-1 and the general punctuation are none.
size_t letterCount(std::string_view text) {
    size_t count = 0;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        constexpr unsigned char latinSigns = 0xc2;
        constexpr unsigned char punctuation = 0xe2;
        const bool isAscii = byte < 0x80;
        const bool isLetter =
            isAscii ? (byte | 0x20) >= 'a' && (byte | 0x20) <= 'z' : byte > latinSigns && byte != punctuation;
        count += isLetter || (byte >= '0' && byte <= '9') ? 1 : 0;
    }
    return count;
}

size_t characterCount(std::string_view text) {
    return static_cast<size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; }));
}

bool isDoubtful(const ReadWord &word) {
    const size_t characters = characterCount(word.text);
    const size_t letters = letterCount(word.text);
    if (letters == 0)
        return characters <= 2 && word.confidence < unsure;
    return characters == 1 && word.confidence < guessing;
}

} // namespace

void leaveOutDoubtful(ReadLine &line) {
    while (!line.empty() && isDoubtful(line.back()))
        line.pop_back();
    const auto first = std::ranges::find_if_not(line, isDoubtful);
    line.erase(line.begin(), first);
}

} // namespace tembra::recognition
