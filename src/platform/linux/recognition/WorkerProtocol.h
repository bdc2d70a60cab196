#pragma once

#include <cstdint>

namespace tembra::recognition {

// What the program and its recognition worker say to each other, over the socket that is the worker's
// standard input. The worker's arguments are the languages as the engine names them, joined by "+", and after
// how many milliseconds without a picture it ends.
//
// A picture is one byte that brings the descriptor of a file in memory: this header, then the picture's rows
// of one grey byte a pixel. The answer to it is lines of text: `takenMark` at once, then one for each word,
//     left top right bottom text
// in pixels of the picture, an empty one after each line of words, and `endMark` after the last. A worker
// that cannot give this says `noLanguageMark`, or nothing, and ends.
struct PictureHeader {
    static constexpr std::uint32_t expectedMagic = 0x31524d54;

    std::uint32_t magic = expectedMagic;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t bytesPerRow = 0;
};

inline constexpr char takenMark[] = "taken\n";
inline constexpr char endMark[] = "end\n";
// Started with it alone, the worker names the languages that are installed, a line each, and ends.
inline constexpr char languagesOption[] = "--languages";
inline constexpr char noLanguageMark[] = "no language\n";

} // namespace tembra::recognition
