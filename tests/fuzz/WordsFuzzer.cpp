#include "fuzz/Require.h"
#include "platform/linux/recognition/RecognizedText.h"
#include "recognition/model/OCRText.h"

using namespace tembra;

// A worker may fail in the middle of anything; what it says is text, or nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    auto lines = recognizedText({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
    if (!lines)
        return 0;
    const OCRText text{*std::move(lines)};
    const auto feeds = static_cast<std::size_t>(text.string().count(u'\n'));
    require(text.lines.empty() || feeds == text.lines.size() - 1, "there is a line feed between two lines");
    require(text.string(OCRTextLayout::oneLine).count(u'\n') == 0, "one line has no line feed");
    require(text.lineStarts().size() == text.lines.size(), "each line begins somehow");
    (void)text.string(OCRTextLayout::paragraphs);
    return 0;
}
