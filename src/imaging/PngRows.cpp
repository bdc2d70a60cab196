#include "imaging/PngRows.h"

#include "imaging/PngFilter.h"

#include <libdeflate.h>
#include <memory>
#include <utility>
#include <vector>

namespace tembra {

namespace {

struct Release {
    void operator()(libdeflate_decompressor *decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
};

// Four bytes from each pixel of a row; false when a pixel has no colour.
class RowConverter {
public:
    explicit RowConverter(const PngFile &file) : m_file(file) {}

    // The bits that the alphas of all pixels so far have in common.
    [[nodiscard]] bool isOpaque() const { return m_alphas >= 0xff00'0000; }

    bool convert(const unsigned char *row, QRgb *line) {
        const auto width = static_cast<std::size_t>(m_file.head.size.width());
        switch (m_file.head.kind) {
        case PngFile::Kind::Grey:
            for (std::size_t x = 0; x < width; ++x)
                line[x] = 0xff00'0000U | row[x] * 0x01'0101U;
            return true;
        case PngFile::Kind::Rgb:
            for (std::size_t x = 0; x < width; ++x)
                line[x] = qRgb(row[3 * x], row[3 * x + 1], row[3 * x + 2]);
            return true;
        case PngFile::Kind::Palette:
            return lookUp(row, line, width);
        case PngFile::Kind::GreyAlpha:
            for (std::size_t x = 0; x < width; ++x)
                line[x] = static_cast<QRgb>(row[2 * x + 1]) << 24 | row[2 * x] * 0x01'0101U;
            break;
        case PngFile::Kind::Rgba:
            for (std::size_t x = 0; x < width; ++x)
                line[x] = qRgba(row[4 * x], row[4 * x + 1], row[4 * x + 2], row[4 * x + 3]);
            break;
        }
        for (std::size_t x = 0; x < width; ++x)
            m_alphas &= line[x];
        return true;
    }

private:
    bool lookUp(const unsigned char *row, QRgb *line, std::size_t width) {
        unsigned highest = 0;
        for (std::size_t x = 0; x < width; ++x) {
            highest = std::max<unsigned>(highest, row[x]);
            line[x] = m_file.palette[row[x]];
            m_alphas &= line[x];
        }
        return highest < m_file.colours;
    }

    const PngFile &m_file;
    QRgb m_alphas = 0xffff'ffff;
};

} // namespace

bool inflateRows(const PngFile &file, std::span<unsigned char> room, std::span<unsigned char> rows) {
    thread_local const std::unique_ptr<libdeflate_decompressor, Release> decompressor(
        libdeflate_alloc_decompressor());
    const auto compressed = file.joinedIn(room);
    return decompressor &&
           libdeflate_zlib_decompress(decompressor.get(), compressed.data(), compressed.size(), rows.data(),
                                      rows.size(), nullptr) == LIBDEFLATE_SUCCESS;
}

std::optional<QImage> imageOfRows(const PngFile &file, std::span<unsigned char> rows) {
    QImage image(file.head.size, QImage::Format_ARGB32);
    if (image.isNull())
        return std::nullopt;
    const std::size_t stride = file.head.stride();
    const std::vector<unsigned char> zeros(stride);
    RowConverter converter(file);
    const unsigned char *above = zeros.data();
    for (int y = 0; y < image.height(); ++y) {
        unsigned char *row = rows.data() + static_cast<std::size_t>(y) * stride;
        if (!undoPngFilter(row, above, stride - 1, file.head.channels()))
            return std::nullopt;
        above = row + 1;
        if (!converter.convert(above, reinterpret_cast<QRgb *>(image.scanLine(y))))
            return std::nullopt;
    }
    if (converter.isOpaque())
        image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

} // namespace tembra
