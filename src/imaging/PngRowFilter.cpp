#include "imaging/PngRowFilter.h"

#include "imaging/Opacity.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace tembra {

namespace {

using Byte = unsigned char;

// Of a picture's pixels. Drawn ones have text, and gradients that change in one direction only.
constexpr double mostlyUneven = 0.5;
constexpr double hardlyUneven = 0.08;
constexpr double unevenRow = 0.2;

// The share of a row's pixels that differ from both the left and the upper neighbour.
double unevenness(const QImage &image, int y) {
    const auto *above = reinterpret_cast<const QRgb *>(image.constScanLine(std::max(0, y - 1)));
    const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
    int uneven = 0;
    for (int x = 1; x < image.width(); ++x)
        uneven += line[x] != line[x - 1] && line[x] != above[x] ? 1 : 0;
    return static_cast<double>(uneven) / image.width();
}

// The same of a sample of rows.
double unevenness(const QImage &image) {
    constexpr int sampledRows = 64;
    const int step = std::max(1, image.height() / sampledRows);
    double sum = 0;
    int count = 0;
    for (int y = 1; y < image.height(); y += step, ++count)
        sum += unevenness(image, y);
    return sum / std::max(1, count);
}

void pack(const QRgb *line, int width, int channels, Byte *row) {
    if (channels == 4) {
        for (int x = 0; x < width; ++x, row += 4) {
            const QRgb rgba = (line[x] & 0xff00'ff00) | (line[x] >> 16 & 0xff) | (line[x] & 0xff) << 16;
            qToLittleEndian(rgba, row);
        }
        return;
    }
    for (int x = 0; x < width; ++x, row += 3) {
        row[0] = static_cast<Byte>(qRed(line[x]));
        row[1] = static_cast<Byte>(qGreen(line[x]));
        row[2] = static_cast<Byte>(qBlue(line[x]));
    }
}

// A byte's neighbours are to its left, above it, and above the left one.
Byte nearest(int left, int up, int corner) {
    const int toLeft = std::abs(up - corner);
    const int toUp = std::abs(left - corner);
    const int toCorner = std::abs(left + up - 2 * corner);
    const int besides = toUp <= toCorner ? up : corner;
    return static_cast<Byte>(toLeft <= toUp && toLeft <= toCorner ? left : besides);
}

// The filters that make differences. `row` and `above` are preceded by a pixel of zeros.
class Differences {
public:
    Differences(std::size_t size, std::size_t channels) : m_size(size), m_channels(channels) {
        for (auto &candidate : m_candidates)
            candidate.resize(size);
    }

    // The filter whose result is nearest to zeros, and the result behind its name.
    void write(const Byte *row, const Byte *above, Byte *target) {
        const Byte *left = row - m_channels;
        const Byte *corner = above - m_channels;
        make(0, [=](std::size_t i) { return row[i] - left[i]; });
        make(1, [=](std::size_t i) { return row[i] - above[i]; });
        make(2, [=](std::size_t i) { return row[i] - (left[i] + above[i]) / 2; });
        make(3, [=](std::size_t i) { return row[i] - nearest(left[i], above[i], corner[i]); });
        const auto best = std::ranges::min_element(m_sums) - m_sums.begin();
        *target = static_cast<Byte>(1 + best);
        std::memcpy(target + 1, m_candidates[static_cast<std::size_t>(best)].data(), m_size);
    }

private:
    template <class Difference>
    void make(std::size_t filter, const Difference &difference) {
        Byte *candidate = m_candidates[filter].data();
        unsigned sum = 0;
        for (std::size_t i = 0; i < m_size; ++i) {
            const auto value = static_cast<Byte>(difference(i));
            candidate[i] = value;
            sum += std::min<Byte>(value, static_cast<Byte>(-value));
        }
        m_sums[filter] = sum;
    }

    const std::size_t m_size;
    const std::size_t m_channels;
    std::array<std::vector<Byte>, 4> m_candidates;
    std::array<unsigned, 4> m_sums{};
};

} // namespace

PngRowFilter::PngRowFilter(const QImage &image) : m_image(image) {
    const bool isFit = image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32;
    if (!isFit)
        m_image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    m_channels = isOpaque(m_image) ? 3 : 4;
    const double uneven = unevenness(m_image);
    m_looksLikePhotograph = uneven > mostlyUneven;
    m_looksDrawn = uneven < hardlyUneven;
}

void PngRowFilter::write(int first, std::span<unsigned char> rows) const {
    const auto line = [this](int y) { return reinterpret_cast<const QRgb *>(m_image.constScanLine(y)); };
    const int width = m_image.width();
    const auto pixel = static_cast<std::size_t>(m_channels);
    std::vector<Byte> above(pixel + stride());
    std::vector<Byte> row(above.size());
    Differences differences(stride() - 1, pixel);
    for (int y = first; !rows.empty(); ++y, rows = rows.subspan(stride())) {
        if (!isMadeDifferences(y)) {
            rows.front() = 0;
            pack(line(y), width, m_channels, rows.data() + 1);
            continue;
        }
        if (y > 0)
            pack(line(y - 1), width, m_channels, above.data() + pixel);
        pack(line(y), width, m_channels, row.data() + pixel);
        differences.write(row.data() + pixel, above.data() + pixel, rows.data());
    }
}

bool PngRowFilter::isMadeDifferences(int y) const {
    return m_looksLikePhotograph || (!m_looksDrawn && unevenness(m_image, y) > unevenRow);
}

} // namespace tembra
