#include "fuzz/PngMutation.h"
#include "fuzz/Require.h"
#include "imaging/JpegEncoder.h"
#include "imaging/PictureDecoding.h"
#include "imaging/PictureLimits.h"
#include "imaging/PngEncoder.h"

#include <algorithm>

using namespace tembra;

namespace {

// What decoding larger pictures takes says nothing new.
constexpr qint64 mostPixels = 256 * 256;
constexpr int reducedSide = 12;
constexpr double jpegQuality = 0.95;

void encode(const QImage &image, const PictureMetadata &metadata) {
    const auto png = encodePng(image, metadata);
    require(png.has_value(), "a picture can be written as PNG");
    require(decodePicture(*png) == image, "PNG keeps every pixel");
    const auto jpeg = encodeJpeg(image, jpegQuality, metadata);
    require(jpeg.has_value(), "a picture can be written as JPEG");
    const auto lossy = decodePicture(*jpeg);
    require(lossy && lossy->size() == image.size(), "JPEG keeps the size");
}

} // namespace

// Whatever is decoded can be written, and what promises too much is refused. How little memory that takes is
// for -malloc_limit_mb to say.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const auto header = readPictureHeader(bytes);
    const bool isHopeful = header && isDecodable(*header, bytes.size());
    if (isHopeful && qint64{header->size.width()} * header->size.height() > mostPixels)
        return 0;
    const auto image = decodePicture(bytes);
    const auto reduced = decodePicture(bytes, reducedSide);
    require(image.has_value() == reduced.has_value(), "a picture is damaged at every size or at none");
    if (!image)
        return 0;
    require(isHopeful && image->size() == header->uprightSize(), "a picture is what its head says");
    require(std::max(reduced->width(), reduced->height()) <= reducedSide, "a reduced picture is small");
    encode(*image, header->metadata);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                               unsigned seed) {
    return mutatePng(data, size, room, seed);
}
