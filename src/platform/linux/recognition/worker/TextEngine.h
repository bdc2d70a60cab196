#pragma once

#include "platform/linux/recognition/worker/GreyPicture.h"
#include "platform/linux/recognition/worker/ReadText.h"
#include "platform/linux/recognition/worker/TextSegments.h"

#include <optional>
#include <tesseract/baseapi.h>

namespace tembra::recognition {

// One engine, for one thread. It reads a line at a time: where the lines are is known before.
class TextEngine {
public:
    // `languages` as the engine names them, joined by "+"; those that are not installed are passed over.
    explicit TextEngine(const std::string &languages);

    // As the engine names them.
    [[nodiscard]] static std::vector<std::string> installedLanguages();

    // False where none of the languages is installed.
    [[nodiscard]] bool isUsable() const { return m_isUsable; }
    // The words of a segment of the ink picture, in its pixels, with boxes around the ink; nothing when the
    // engine failed.
    [[nodiscard]] std::optional<ReadLine> read(const GreyPicture &ink, const TextSegment &segment);

private:
    tesseract::TessBaseAPI m_engine;
    bool m_isUsable = false;
};

} // namespace tembra::recognition
