#include "platform/linux/PngThumbnailReader.h"

namespace tembra {

struct PngThumbnailReader::Inflater {};

PngThumbnailReader::PngThumbnailReader() = default;
PngThumbnailReader::~PngThumbnailReader() = default;

std::optional<QImage> PngThumbnailReader::read(const QString &, int) {
    return std::nullopt;
}

void PngThumbnailReader::release() {}

} // namespace tembra
