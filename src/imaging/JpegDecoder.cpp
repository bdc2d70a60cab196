#include "imaging/JpegDecoder.h"

#include <QColorSpace>

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>
#include <turbojpeg.h>

namespace tembra {

namespace {

struct Release {
    void operator()(void *handle) const { tjDestroy(handle); }
};
using Handle = std::unique_ptr<void, Release>;

constexpr int pixelFormat = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TJPF_BGRA : TJPF_ARGB;

// Bytes between the pixels and the end are common, and all that is wrong with many a camera's files.
bool isHarmless(const Handle &handle) {
    return tjGetErrorCode(handle.get()) == TJERR_WARNING &&
           std::string_view(tjGetErrorStr2(handle.get())).ends_with("extraneous bytes before marker 0xd9");
}

// The smallest of the sizes that the decoder gives which is not too small.
QSize decodedSize(QSize size, int neededSide) {
    int count = 0;
    const tjscalingfactor *factors = tjGetScalingFactors(&count);
    QSize best = size;
    for (const tjscalingfactor factor : std::span(factors, static_cast<std::size_t>(std::max(0, count)))) {
        const QSize scaled(TJSCALED(size.width(), factor), TJSCALED(size.height(), factor));
        const int side = std::max(scaled.width(), scaled.height());
        if (side >= neededSide && side < std::max(best.width(), best.height()))
            best = scaled;
    }
    return best;
}

// The inks of print are stored inverted, as light.
void mixInks(QImage &image) {
    for (int y = 0; y < image.height(); ++y) {
        uchar *inks = image.scanLine(y);
        auto *line = reinterpret_cast<QRgb *>(inks);
        for (int x = 0; x < image.width(); ++x, inks += 4)
            line[x] = qRgb(inks[0] * inks[3] / 255, inks[1] * inks[3] / 255, inks[2] * inks[3] / 255);
    }
}

void convertToSrgb(QImage &image, const QColorSpace &space) {
    if (!space.isValid() || space == QColorSpace(QColorSpace::SRgb))
        return;
    image.setColorSpace(space);
    image.convertToColorSpace(QColorSpace::SRgb);
}

} // namespace

std::optional<QImage> decodeJpeg(QByteArrayView bytes, const JpegFile &file, int neededSide) {
    const Handle handle(tjInitDecompress());
    const auto *data = reinterpret_cast<const unsigned char *>(bytes.data());
    const auto length = static_cast<unsigned long>(bytes.size());
    QSize size;
    int subsampling = 0;
    int colours = 0;
    if (!handle || (tjDecompressHeader3(handle.get(), data, length, &size.rwidth(), &size.rheight(),
                                        &subsampling, &colours) != 0 &&
                    !isHarmless(handle)))
        return std::nullopt;
    if (size != file.header.size)
        return std::nullopt;
    size = decodedSize(size, neededSide);
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return std::nullopt;
    const bool isOfInks = colours == TJCS_CMYK || colours == TJCS_YCCK;
    const bool isWhole =
        tjDecompress2(handle.get(), data, length, image.bits(), size.width(),
                      static_cast<int>(image.bytesPerLine()), size.height(),
                      isOfInks ? static_cast<int>(TJPF_CMYK) : pixelFormat, TJFLAG_LIMITSCANS) == 0;
    if (!isWhole && !isHarmless(handle))
        return std::nullopt;
    if (isOfInks)
        mixInks(image);
    else if (!file.colourProfile.isEmpty())
        convertToSrgb(image, QColorSpace::fromIccProfile(file.colourProfile));
    return image;
}

} // namespace tembra
