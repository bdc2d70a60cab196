#include "platform/linux/PngThumbnailReader.h"

#include "platform/linux/AreaAverage.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/PngFile.h"
#include "platform/linux/PngFilter.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <libdeflate.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tembra {

namespace {

// Larger pictures are rare, and several threads at once would take too much memory for them.
constexpr std::size_t mostPixelBytes = std::size_t{128} << 20;
constexpr std::size_t mostFileBytes = mostPixelBytes;
// What is kept for the next picture.
constexpr std::size_t mostKeptBytes = std::size_t{48} << 20;

using Bytes = std::span<unsigned char>;

bool readAt(const Descriptor &file, Bytes bytes, std::size_t offset) {
    while (!bytes.empty()) {
        const ssize_t count = ::pread(file.number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += static_cast<std::size_t>(count);
    }
    return true;
}

unsigned char scaled(unsigned value, unsigned alpha) {
    const unsigned product = value * alpha;
    return static_cast<unsigned char>((product + (product >> 8) + 0x80) >> 8);
}

// Turns rows as the file has them into rows that can be averaged.
class RowPreparer {
public:
    explicit RowPreparer(const PngFile &file)
        : m_file(file),
          m_prepared(static_cast<std::size_t>(file.head.size.width()) *
                     static_cast<std::size_t>(channels())) {}

    [[nodiscard]] int channels() const {
        return m_file.head.kind == PngFile::Kind::Palette ? 4 : m_file.head.channels();
    }
    [[nodiscard]] bool isTransparent() const { return m_isTransparent; }

    // Null when a pixel has no colour.
    const unsigned char *prepare(const unsigned char *row) {
        switch (m_file.head.kind) {
        case PngFile::Kind::Grey:
        case PngFile::Kind::Rgb:
            return row;
        case PngFile::Kind::Palette:
            return lookUp(row);
        case PngFile::Kind::GreyAlpha:
            return premultiply<2>(row);
        case PngFile::Kind::Rgba:
            return premultiply<4>(row);
        }
        Q_UNREACHABLE();
    }

private:
    template <std::size_t channels>
    const unsigned char *premultiply(const unsigned char *row) {
        const std::size_t size = m_prepared.size();
        unsigned char bitsOfAll = 255;
        for (std::size_t i = channels - 1; i < size; i += channels)
            bitsOfAll &= row[i];
        if (bitsOfAll == 255)
            return row;
        m_isTransparent = true;
        for (std::size_t i = 0; i < size; i += channels) {
            const unsigned char alpha = row[i + channels - 1];
            for (std::size_t c = 0; c + 1 < channels; ++c)
                m_prepared[i + c] = scaled(row[i + c], alpha);
            m_prepared[i + channels - 1] = alpha;
        }
        return m_prepared.data();
    }

    const unsigned char *lookUp(const unsigned char *row) {
        m_isTransparent = m_file.hasTransparentColours;
        for (std::size_t i = 0; i < m_prepared.size(); i += 4) {
            const unsigned char index = *row++;
            if (index >= m_file.colours)
                return nullptr;
            const QRgb colour = m_file.palette[index];
            m_prepared[i] = static_cast<unsigned char>(qRed(colour));
            m_prepared[i + 1] = static_cast<unsigned char>(qGreen(colour));
            m_prepared[i + 2] = static_cast<unsigned char>(qBlue(colour));
            m_prepared[i + 3] = static_cast<unsigned char>(qAlpha(colour));
        }
        return m_prepared.data();
    }

    const PngFile &m_file;
    std::vector<unsigned char> m_prepared;
    bool m_isTransparent = false;
};

QRgb pixel(const unsigned char *channel, int channels) {
    switch (channels) {
    case 1:
        return qRgb(channel[0], channel[0], channel[0]);
    case 2:
        return qRgba(channel[0], channel[0], channel[0], channel[1]);
    case 3:
        return qRgb(channel[0], channel[1], channel[2]);
    default:
        return qRgba(channel[0], channel[1], channel[2], channel[3]);
    }
}

QImage toImage(std::span<const unsigned char> averages, QSize size, int channels, bool isTransparent) {
    QImage image(size, isTransparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const unsigned char *channel = averages.data();
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, channel += channels)
            line[x] = pixel(channel, channels);
    }
    return isTransparent ? std::move(image).convertToFormat(QImage::Format_ARGB32) : image;
}

std::optional<QImage> average(const PngFile &file, Bytes pixels, QSize target) {
    const std::size_t stride = file.head.stride();
    const std::vector<unsigned char> zeros(stride);
    RowPreparer preparer(file);
    AreaAverage averages(file.head.size, target, preparer.channels());
    const unsigned char *above = zeros.data();
    for (std::size_t offset = 0; offset < pixels.size(); offset += stride) {
        unsigned char *row = pixels.data() + offset;
        if (!undoPngFilter(row, above, stride - 1, file.head.channels()))
            return std::nullopt;
        above = row + 1;
        const unsigned char *prepared = preparer.prepare(above);
        if (!prepared)
            return std::nullopt;
        averages.add(prepared);
    }
    return toImage(averages.result(), target, preparer.channels(), preparer.isTransparent());
}

} // namespace

struct PngThumbnailReader::Inflater {
    libdeflate_decompressor *const decompressor = libdeflate_alloc_decompressor();

    Inflater() = default;
    ~Inflater() { libdeflate_free_decompressor(decompressor); }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    // Whether the whole of `into` was filled, no more and no less.
    [[nodiscard]] bool inflate(std::span<const unsigned char> compressed, Bytes into) const {
        return decompressor &&
               libdeflate_zlib_decompress(decompressor, compressed.data(), compressed.size(), into.data(),
                                          into.size(), nullptr) == LIBDEFLATE_SUCCESS;
    }
};

PngThumbnailReader::PngThumbnailReader() : m_inflater(std::make_unique<Inflater>()) {}
PngThumbnailReader::~PngThumbnailReader() = default;

std::optional<QImage> PngThumbnailReader::read(const QString &path, int side) {
    const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const auto fileSize = static_cast<std::size_t>(status.st_size);
    std::array<unsigned char, PngFile::headSize> start{};
    if (fileSize < start.size() || fileSize > mostFileBytes || !readAt(file, start, 0))
        return std::nullopt;
    const auto head = PngFile::readHead(start);
    if (!head || std::max(head->size.width(), head->size.height()) / 2 < side ||
        head->pixelBytes() > mostPixelBytes)
        return std::nullopt;
    const Bytes bytes = m_file.take(fileSize);
    if (bytes.empty() || !readAt(file, bytes, 0))
        return std::nullopt;
    const auto png = PngFile::read(bytes);
    // The file may have been replaced since its start was read.
    if (!png || png->head.size != head->size || png->head.kind != head->kind)
        return std::nullopt;
    const Bytes pixels = m_pixels.take(head->pixelBytes());
    if (pixels.empty() || !m_inflater->inflate(png->compressed, pixels))
        return std::nullopt;
    const QSize target = head->size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    auto image = average(*png, pixels, target);
    if (fileSize + pixels.size() > mostKeptBytes)
        release();
    return image;
}

void PngThumbnailReader::release() {
    m_file.release();
    m_pixels.release();
}

} // namespace tembra
