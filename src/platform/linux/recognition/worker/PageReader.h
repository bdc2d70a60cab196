#pragma once

#include "platform/linux/recognition/worker/ReadText.h"
#include "platform/linux/recognition/worker/TextEngine.h"

#include <tl/expected.hpp>

#include <memory>
#include <string>
#include <vector>

namespace tembra::recognition {

enum class ReadingFault { noLanguage, unusable };

// Reads grey pictures with as many engines as there are processors to spare; they stay for the next one.
class PageReader {
public:
    // `languages` as the engine names them, joined by "+".
    explicit PageReader(std::string languages);

    // The lines in reading order. Small text is read enlarged.
    [[nodiscard]] tl::expected<std::vector<ReadLine>, ReadingFault> read(Pix *grey);

private:
    const std::string m_languages;
    // Each is made by the first stripe that it is to read.
    std::vector<std::unique_ptr<TextEngine>> m_engines;
};

} // namespace tembra::recognition
