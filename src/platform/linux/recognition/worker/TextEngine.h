#pragma once

#include "platform/linux/recognition/worker/PixOwner.h"
#include "platform/linux/recognition/worker/ReadText.h"

#include <optional>
#include <tesseract/baseapi.h>

namespace tembra::recognition {

// One engine, for one thread. It takes the text where it finds it (sparse text), as interfaces have it.
class TextEngine {
public:
    // `languages` as the engine names them, joined by "+"; those that are not installed are passed over.
    explicit TextEngine(const std::string &languages);

    // False where none of the languages is installed.
    [[nodiscard]] bool isUsable() const { return m_isUsable; }
    // In pixels of the picture; nothing when it failed.
    [[nodiscard]] std::optional<std::vector<ReadLine>> read(Pix *ink);

private:
    tesseract::TessBaseAPI m_engine;
    bool m_isUsable = false;
};

} // namespace tembra::recognition
