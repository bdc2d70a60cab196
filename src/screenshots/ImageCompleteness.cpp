#include "screenshots/ImageCompleteness.h"

#include "screenshots/ContainerLength.h"
#include "screenshots/OpenFileDevice.h"
#include "screenshots/PictureLength.h"

#include <QImageReader>

namespace tembra {

namespace {

// Larger pictures are not decoded to see whether they are whole: Qt's readers would refuse them, and without
// that limit it would take longer than their writing.
bool isTooLargeToDecode(const QImageReader &reader) {
    constexpr qint64 megabytesWithoutLimit = 400;
    const qint64 limit = QImageReader::allocationLimit();
    const QSize pixels = reader.size();
    const qint64 bitsPerPixel = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    const qint64 bytesPerLine = (pixels.width() * bitsPerPixel + 31) / 32 * 4;
    return bytesPerLine * pixels.height() > (limit > 0 ? limit : megabytesWithoutLimit) << 20;
}

bool looksWhole(const OpenFile &file, std::uint64_t size, QStringView extension) {
    if (extension == u"png")
        return isWholePng(file, size);
    if (extension == u"jpg" || extension == u"jpeg")
        return isWholeJpeg(file, size);
    if (extension == u"tiff")
        return isWholeTiff(file, size);
    return isWholeIsoMedia(file, size, "meta");
}

// True also of kinds that no reader is installed for: there is nothing better to go by than the file's
// structure.
bool decodes(const OpenFile &file, std::uint64_t size, QStringView extension) {
    OpenFileDevice device(file, size);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return extension == u"heic" || extension == u"tiff";
    if (isTooLargeToDecode(reader))
        return true;
    reader.setScaledSize(QSize(1, 1));
    return !reader.read().isNull();
}

} // namespace

bool ImageCompleteness::isCompleteImage(const OpenFile &file, QStringView extension, bool wasJustWritten) {
    const std::uint64_t size = file.size();
    if (size == 0)
        return false;
    return looksWhole(file, size, extension) && (!wasJustWritten || decodes(file, size, extension));
}

} // namespace tembra
