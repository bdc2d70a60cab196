#include "imaging/PictureLimits.h"

#include <unistd.h>

namespace tembra {

namespace {

constexpr int longestSide = 32'768;
// Of four bytes a pixel: the picture as it was, as it is rendered, and as rows that are to be compressed.
constexpr qint64 bytesPerPixel = 3 * 4;
// No deflate stream gives more than 258 bytes for two bits (RFC 1951).
constexpr qint64 mostInflated = 1'032;
// A block of 8 × 8 values takes at least one bit, and of blocks that are stretched four times in one
// direction eight cover 32 × 32 pixels (ITU-T T.81, B.2.3).
constexpr qint64 mostJpegPixelsPerByte = 1'024;

qint64 memory() {
    static const qint64 bytes = qint64{::sysconf(_SC_PHYS_PAGES)} * ::sysconf(_SC_PAGESIZE);
    return bytes;
}

} // namespace

bool isDecodable(const PictureHeader &header, qsizetype fileSize) {
    const qint64 width = header.size.width();
    const qint64 height = header.size.height();
    if (width < 1 || height < 1 || width > longestSide || height > longestSide)
        return false;
    if (width * height * bytesPerPixel > memory() / 4 * 3)
        return false;
    switch (header.type) {
    case PictureType::png:
        return (width * header.bitsPerPixel + 7) / 8 * height <= mostInflated * fileSize;
    case PictureType::jpeg:
        return width * height <= mostJpegPixelsPerByte * fileSize;
    }
    Q_UNREACHABLE();
}

} // namespace tembra
