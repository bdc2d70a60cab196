#include "imaging/GaussianBlur.h"

#include "imaging/GaussianKernel.h"
#include "imaging/InHalves.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

// The blur is made on a reduced picture. Samples lie at every h-th pixel from the image's origin; a pixel
// between two samples counts for both by its nearness, and is found again between them by the same shares. A
// Gaussian of correspondingly lower variance in between makes the whole the Gaussian that was asked for. As
// the samples do not depend on the area, and every sum is over the same terms in the same order, neither does
// the result.

namespace tembra {

namespace {

struct alignas(16) Sample {
    using Channels = float __attribute__((vector_size(16)));
    Channels channels;
};
using Words = quint16 __attribute__((vector_size(16)));
using EightBytes = quint8 __attribute__((vector_size(8)));

template <class Type>
struct Plane {
    // Of the sample or pixel at the front, in the image's own numbers.
    QRect rect;
    std::unique_ptr<Type[]> content;

    explicit Plane(QRect place, int channels = 1)
        : rect(place),
          content(new Type[static_cast<std::size_t>(place.width()) *
                           static_cast<std::size_t>(place.height()) * static_cast<std::size_t>(channels)]),
          m_channels(channels) {}

    [[nodiscard]] Type *row(int y) const {
        return content.get() + qptrdiff{y - rect.top()} * rect.width() * m_channels;
    }

private:
    int m_channels;
};

// Sums a column's pixels around sample row y by their shares: eight bits and twice those of h are sixteen at
// most.
template <int h>
void sumRows(const QImage &image, int y, int left, int width, quint16 *sums) {
    std::array<const uchar *, 2 * h - 1> rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int row = std::clamp((y - 1) * h + 1 + static_cast<int>(i), 0, image.height() - 1);
        rows[i] = image.constScanLine(row) + 4 * qptrdiff{left};
    }
    for (int i = 0; i < 4 * width; ++i) {
        unsigned sum = h * rows[h - 1][i];
        for (unsigned d = 1; d < h; ++d)
            sum += (h - d) * (unsigned{rows[h - 1 - d][i]} + rows[h - 1 + d][i]);
        sums[i] = static_cast<quint16>(sum);
    }
}

Sample::Channels channelsAt(const quint16 *sums) {
    return Sample::Channels{static_cast<float>(sums[0]), static_cast<float>(sums[1]),
                            static_cast<float>(sums[2]), static_cast<float>(sums[3])};
}

// The same along a row, whose first sample has h pixels before it. Whole numbers below 2^24: exact.
template <int h>
void sumColumns(const quint16 *sums, Sample *samples, int count) {
    Sample::Channels before{};
    for (int s = -1; s < count; ++s) {
        Sample::Channels here{};
        Sample::Channels next{};
        for (int p = 0; p < h; ++p) {
            const Sample::Channels channels = channelsAt(sums + 4 * (qptrdiff{s + 1} * h + p));
            here += static_cast<float>(h - p) * channels;
            next += static_cast<float>(p) * channels;
        }
        if (s >= 0)
            samples[s].channels = before + here;
        before = next;
    }
}

// Repeats the pixels at the image's edges beyond them.
void extend(std::vector<quint16> &sums, int from, int left, int right, int to) {
    const auto at = [&](int x) { return sums.data() + 4 * qptrdiff{x - from}; };
    for (int x = from; x < left; ++x)
        std::memcpy(at(x), at(left), 4 * sizeof(quint16));
    for (int x = right; x < to; ++x)
        std::memcpy(at(x), at(right - 1), 4 * sizeof(quint16));
}

// Blurs along a row: `source` begins a radius before `target`.
void blurRow(const Sample *source, Sample *target, int count, const std::vector<float> &taps) {
    const auto radius = static_cast<qptrdiff>(taps.size()) - 1;
    const auto blurred = [&]<int block>(qptrdiff x) {
        std::array<Sample, block> sums;
        const Sample *middle = source + x + radius;
        for (int i = 0; i < block; ++i)
            sums[i].channels = taps[0] * middle[i].channels;
        for (qptrdiff t = 1; t <= radius; ++t) {
            const float tap = taps[static_cast<std::size_t>(t)];
            for (int i = 0; i < block; ++i)
                sums[i].channels += tap * (middle[i - t].channels + middle[i + t].channels);
        }
        std::ranges::copy(sums, target + x);
    };
    int x = 0;
    for (; x + 4 <= count; x += 4)
        blurred.operator()<4>(x);
    for (; x < count; ++x)
        blurred.operator()<1>(x);
}

// Blurs across rows; `rows` are those around the target's.
void blurColumns(const std::vector<const Sample *> &rows, quint16 *target, int count,
                 const std::vector<float> &taps) {
    const std::size_t radius = taps.size() - 1;
    const auto blurred = [&]<int block>(qptrdiff x) {
        std::array<Sample, block> sums;
        for (int i = 0; i < block; ++i)
            sums[i].channels = taps[0] * rows[radius][x + i].channels;
        for (std::size_t t = 1; t <= radius; ++t) {
            const Sample *above = rows[radius - t] + x;
            const Sample *below = rows[radius + t] + x;
            for (int i = 0; i < block; ++i)
                sums[i].channels += taps[t] * (above[i].channels + below[i].channels);
        }
        constexpr float half = 0.5F;
        for (int i = 0; i < block; ++i) {
            sums[i].channels += half;
            for (int c = 0; c < 4; ++c)
                target[4 * (x + i) + c] = static_cast<quint16>(static_cast<int>(sums[i].channels[c]));
        }
    };
    int x = 0;
    for (; x + 4 <= count; x += 4)
        blurred.operator()<4>(x);
    for (; x < count; ++x)
        blurred.operator()<1>(x);
}

// Finds the pixels between samples again: first those between two rows of them, then those in the row.
template <int h>
void enlargeRow(const quint16 *above, const quint16 *below, int shareBelow, int count, quint16 *between,
                uchar *pixels) {
    for (int i = 0; i < 4 * count; ++i)
        between[i] = static_cast<quint16>((above[i] * (h - shareBelow) + below[i] * shareBelow) / h);
    for (int s = 0; s + 1 < count; ++s) {
        if constexpr (h == 1) {
            for (int c = 0; c < 4; ++c)
                pixels[4 * s + c] = static_cast<uchar>((between[4 * s + c] + 128) >> 8);
        } else {
            constexpr quint16 whole = h;
            constexpr quint16 half = 128;
            Words both;
            std::memcpy(&both, between + 4 * s, sizeof both);
            const Words here = __builtin_shufflevector(both, both, 0, 1, 2, 3, 0, 1, 2, 3);
            const Words next = __builtin_shufflevector(both, both, 4, 5, 6, 7, 4, 5, 6, 7);
            for (int p = 0; p < h; p += 2) {
                const auto share = static_cast<quint16>(p);
                const Words shares = share + Words{0, 0, 0, 0, 1, 1, 1, 1};
                const Words levels = (here * (whole - shares) + next * shares + half) >> 8;
                const EightBytes bytes = __builtin_convertvector(levels, EightBytes);
                std::memcpy(pixels + 4 * (qptrdiff{s} * h + p), &bytes, sizeof bytes);
            }
        }
    }
}

// The samples from the one at or before the first pixel to the one behind the last.
template <int h>
QRect samplesAround(QRect area) {
    return QRect(QPoint(area.left() / h, area.top() / h),
                 QPoint(area.right() / h + 1, area.bottom() / h + 1));
}

// Blurs an area into lines of bytes, of which the first is the area's first.
template <int h>
class Blur {
public:
    Blur(const QImage &image, QRect area, double sigma, uchar *result, qsizetype bytesPerLine)
        // A level is 2^8 / h to begin with, so that it is 2^8 after the last sum.
        : m_image(image),
          m_area(area),
          m_taps(gaussianTaps(gaussianSigmaBetween(sigma, h))),
          m_rowTaps(m_taps),
          m_radius(static_cast<int>(m_taps.size()) - 1),
          m_needed(samplesAround<h>(area)),
          m_rows(m_needed.adjusted(0, -m_radius, 0, m_radius)),
          m_result(result),
          m_bytesPerLine(bytesPerLine) {
        for (float &tap : m_rowTaps)
            tap *= 256.0F / h / (h * h) / (h * h);
    }

    void run() {
        inHalves([this](int half) { reduce(half); });
        inHalves([this](int half) { enlarge(half); });
    }

private:
    static std::pair<int, int> halfOf(int first, int count, int half) {
        const int middle = first + count / 2;
        return half == 0 ? std::pair(first, middle) : std::pair(middle, first + count);
    }

    // Samples, blurred along rows.
    void reduce(int half) {
        const int first = m_needed.left() - m_radius;
        const int count = m_needed.width() + 2 * m_radius;
        const int from = (first - 1) * h;
        const int to = (first + count) * h;
        const int left = std::clamp(from, 0, m_image.width() - 1);
        const int right = std::clamp(to, left + 1, m_image.width());
        std::vector<quint16> sums(4 * static_cast<std::size_t>(to - from));
        const std::unique_ptr<Sample[]> samples(new Sample[static_cast<std::size_t>(count)]);
        const auto [top, bottom] = halfOf(m_rows.rect.top(), m_rows.rect.height(), half);
        for (int y = top; y < bottom; ++y) {
            sumRows<h>(m_image, y, left, right - left, sums.data() + 4 * qptrdiff{left - from});
            extend(sums, from, left, right, to);
            sumColumns<h>(sums.data(), samples.get(), count);
            blurRow(samples.get(), m_rows.row(y), m_needed.width(), m_rowTaps);
        }
    }

    void enlarge(int half) {
        const auto [first, last] = halfOf(m_area.top(), m_area.height(), half);
        const int count = m_needed.width();
        const int skipped = m_area.left() - m_needed.left() * h;
        std::vector<quint16> above(4 * static_cast<std::size_t>(count));
        std::vector<quint16> below(above.size());
        std::vector<quint16> between(above.size());
        std::vector<uchar> pixels(4 * static_cast<std::size_t>(h) * static_cast<std::size_t>(count));
        for (int y = first; y < last; ++y) {
            if (y == first)
                blurSamples(y / h, above);
            else if (y % h == 0)
                above.swap(below);
            if (y == first || y % h == 0)
                blurSamples(y / h + 1, below);
            enlargeRow<h>(above.data(), below.data(), y % h, count, between.data(), pixels.data());
            std::memcpy(m_result + (y - m_area.top()) * m_bytesPerLine, pixels.data() + 4 * qptrdiff{skipped},
                        4 * static_cast<std::size_t>(m_area.width()));
        }
    }

    void blurSamples(int y, std::vector<quint16> &target) const {
        std::vector<const Sample *> rows;
        for (int t = -m_radius; t <= m_radius; ++t)
            rows.push_back(m_rows.row(y + t));
        blurColumns(rows, target.data(), m_needed.width(), m_taps);
    }

    const QImage &m_image;
    const QRect m_area;
    const std::vector<float> m_taps;
    std::vector<float> m_rowTaps;
    const int m_radius;
    const QRect m_needed;
    Plane<Sample> m_rows;
    uchar *const m_result;
    const qsizetype m_bytesPerLine;
};

// In bands, so that the samples at hand do not take more memory than the image.
template <int h>
QImage blurred(const QImage &image, QRect area, double sigma) {
    constexpr qint64 mostPixels = (qint64{2} << 20) * h * h;
    constexpr qint64 fewestRows = 256;
    QImage result(area.size(), image.format());
    if (result.isNull())
        return {};
    uchar *bits = result.bits();
    const auto rows = static_cast<int>(std::max(fewestRows, mostPixels / area.width()));
    for (int y = 0; y < area.height(); y += rows) {
        const QRect band(area.left(), area.top() + y, area.width(), std::min(rows, area.height() - y));
        Blur<h>(image, band, sigma, bits + y * result.bytesPerLine(), result.bytesPerLine()).run();
    }
    return result;
}

} // namespace

QImage gaussianBlurred(const QImage &image, QRect area, double sigma) {
    constexpr double widest = 1'000;
    area &= image.rect();
    if (area.isEmpty())
        return {};
    const bool isFit =
        image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
    const QImage source =
        isFit ? image
              : image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                              : QImage::Format_RGB32);
    if (!(sigma > 0))
        return source.copy(area);
    sigma = std::min(sigma, widest);
    if (sigma < 8)
        return blurred<1>(source, area, sigma);
    if (sigma < 16)
        return blurred<2>(source, area, sigma);
    if (sigma < 64)
        return blurred<4>(source, area, sigma);
    return blurred<16>(source, area, sigma);
}

} // namespace tembra
