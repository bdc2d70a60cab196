#pragma once

#include <cstdint>

namespace tembra::recognition {

// What the program and its recognition worker say to each other. The worker's standard input is a file in
// memory: this header, then the picture's rows of one grey byte a pixel. Its argument is the languages as the
// engine names them, joined by "+". On its standard output stands a line of text for each word,
//     left top right bottom text
// in pixels of the picture, an empty one after each line of words, and `endMark` after the last.
struct PictureHeader {
    static constexpr std::uint32_t expectedMagic = 0x31524d54;

    std::uint32_t magic = expectedMagic;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t bytesPerRow = 0;
};

inline constexpr char endMark[] = "end";

// What the worker ends with.
enum ExitCode { recognized = 0, unusable = 2, noLanguage = 3 };

} // namespace tembra::recognition
