#include "fuzz/Require.h"
#include "platform/linux/PngText.h"
#include "screenshots/ContainerLength.h"
#include "screenshots/PictureLength.h"
#include "support/MemoryFile.h"

using namespace tembra;

// Whatever lies in the folder under a capture's name is asked whether it is whole. How little memory that
// takes is for -malloc_limit_mb to say.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const MemoryFile file(bytes);
    // It grew or was cut since its size was asked for.
    for (const std::uint64_t told : {size / 2, size, 2 * size}) {
        (void)isWholePng(file, told);
        (void)isWholeJpeg(file, told);
        (void)isWholeTiff(file, told);
        (void)isWholeIsoMedia(file, told, "moov");
        (void)matroskaLength(file, told);
    }
    if (const auto software = pngText(file, QByteArrayLiteral("Software")))
        require(bytes.contains(*software), "a text is one of the file's");
    return 0;
}
