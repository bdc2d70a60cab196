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

    // The lines in reading order.
    [[nodiscard]] tl::expected<std::vector<ReadLine>, ReadingFault> read(const GreyPicture &grey);

private:
    const std::string m_languages;
    // Each is made when it is first needed.
    std::vector<std::unique_ptr<TextEngine>> m_engines;
};

} // namespace tembra::recognition
