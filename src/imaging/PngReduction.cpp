#include "imaging/AreaAverage.h"
#include "imaging/PngFilter.h"
#include "imaging/PngRows.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace tembra {

namespace {

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
                     static_cast<std::size_t>(channels())) {
        std::ranges::transform(file.palette, m_palette.begin(),
                               [](QRgb colour) { return qPremultiply(colour); });
    }

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
            const QRgb colour = m_palette[index];
            m_prepared[i] = static_cast<unsigned char>(qRed(colour));
            m_prepared[i + 1] = static_cast<unsigned char>(qGreen(colour));
            m_prepared[i + 2] = static_cast<unsigned char>(qBlue(colour));
            m_prepared[i + 3] = static_cast<unsigned char>(qAlpha(colour));
        }
        return m_prepared.data();
    }

    const PngFile &m_file;
    std::array<QRgb, 256> m_palette{};
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

} // namespace

std::optional<QImage> reducedImageOfRows(const PngFile &file, std::span<unsigned char> rows, QSize target) {
    const std::size_t stride = file.head.stride();
    const std::vector<unsigned char> zeros(stride);
    RowPreparer preparer(file);
    AreaAverage averages(file.head.size, target, preparer.channels());
    const unsigned char *above = zeros.data();
    for (std::size_t offset = 0; offset < rows.size(); offset += stride) {
        unsigned char *row = rows.data() + offset;
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

} // namespace tembra
