#include "imaging/AreaAverage.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace tembra {

namespace {

// So many bytes can be summed in sixteen bits.
constexpr std::uint32_t mostNarrowUnits = 257;
// Pixels are looked at in fours of channels, also the last one of a row.
constexpr std::size_t readAhead = 4;

using Floats = float __attribute__((vector_size(16)));
using Integers = std::int32_t __attribute__((vector_size(16)));

// Those of a pixel, and of the next one when it has fewer channels. They fit a float's 24 bits, and a float
// is told from its neighbours far more finely than a byte.
template <class Sum>
Floats fourSums(const Sum *sums) {
    Sum four __attribute__((vector_size(4 * sizeof(Sum))));
    std::memcpy(&four, sums, sizeof four);
    return __builtin_convertvector(__builtin_convertvector(four, Integers), Floats);
}

} // namespace

AreaAverage::AreaAverage(QSize source, QSize target, int channels)
    : m_sourceWidth(static_cast<std::uint32_t>(source.width())),
      m_targetWidth(static_cast<std::uint32_t>(target.width())),
      m_channels(static_cast<std::uint32_t>(channels)),
      m_sourceRow(static_cast<std::uint32_t>(target.height() / std::gcd(source.height(), target.height()))),
      m_targetRow(static_cast<std::uint32_t>(source.height() / std::gcd(source.height(), target.height()))),
      m_unitsMissing(m_targetRow),
      m_isNarrow(m_targetRow <= mostNarrowUnits),
      m_narrow(std::size_t{m_sourceWidth} * m_channels + readAhead),
      m_wide(m_isNarrow ? 0 : m_narrow.size()),
      m_averages(std::size_t{m_targetWidth} * m_channels + readAhead),
      m_averaged(std::size_t{m_targetWidth} * m_channels) {
    m_columns.reserve(m_targetWidth);
    const double area = static_cast<double>(m_sourceWidth) * m_targetRow;
    m_wholeShare = static_cast<float>(m_targetWidth / area);
    for (std::uint32_t x = 0; x < m_targetWidth; ++x) {
        const std::uint64_t from = std::uint64_t{x} * m_sourceWidth;
        const std::uint64_t to = from + m_sourceWidth;
        const std::uint64_t first = from / m_targetWidth;
        const std::uint64_t last = (to - 1) / m_targetWidth;
        const std::uint64_t firstShare = first == last ? m_sourceWidth : (first + 1) * m_targetWidth - from;
        const std::uint64_t lastShare = first == last ? 0 : to - last * m_targetWidth;
        m_columns.push_back({static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(last),
                             static_cast<float>(static_cast<double>(firstShare) / area),
                             static_cast<float>(static_cast<double>(lastShare) / area)});
    }
}

const unsigned char *AreaAverage::add(const unsigned char *row) {
    if (m_unitsMissing > m_sourceRow) {
        m_unitsMissing -= m_sourceRow;
        addWhole(row);
        return nullptr;
    }
    const std::uint32_t rest = m_sourceRow - m_unitsMissing;
    addShare(row, m_unitsMissing);
    finishRow();
    m_unitsMissing = m_targetRow - rest;
    if (rest > 0)
        addShare(row, rest);
    return m_averaged.data();
}

void AreaAverage::addShare(const unsigned char *row, std::uint32_t weight) {
    // Sixteen bits by sixteen are what processors multiply by the dozen.
    const auto share = static_cast<std::uint16_t>(weight);
    const std::size_t size = std::size_t{m_sourceWidth} * m_channels;
    if (m_isNarrow) {
        for (std::size_t i = 0; i < size; ++i)
            m_narrow[i] = static_cast<std::uint16_t>(m_narrow[i] + share * row[i]);
        return;
    }
    for (std::size_t i = 0; i < size; ++i)
        m_wide[i] += std::uint32_t{share} * std::uint32_t{std::uint16_t{row[i]}};
}

void AreaAverage::addWhole(const unsigned char *row) {
    if (m_isNarrow) {
        addShare(row, m_sourceRow);
        return;
    }
    const std::size_t size = std::size_t{m_sourceWidth} * m_channels;
    for (std::size_t i = 0; i < size; ++i)
        m_narrow[i] = static_cast<std::uint16_t>(m_narrow[i] + row[i]);
    if (++m_wholeRows == mostNarrowUnits)
        mergeWhole();
}

void AreaAverage::mergeWhole() {
    if (m_wholeRows == 0)
        return;
    const auto share = static_cast<std::uint16_t>(m_sourceRow);
    for (std::size_t i = 0; i < m_wide.size(); ++i)
        m_wide[i] += std::uint32_t{share} * std::uint32_t{m_narrow[i]};
    std::ranges::fill(m_narrow, std::uint16_t{0});
    m_wholeRows = 0;
}

template <std::uint32_t channels, class Sum>
void AreaAverage::averageColumns(const Sum *sums) {
    constexpr float half = 0.5F;
    const float wholeShare = m_wholeShare;
    float *target = m_averages.data();
    for (const Column &column : m_columns) {
        const Sum *first = sums + std::size_t{column.first} * channels;
        const Sum *last = sums + std::size_t{column.last} * channels;
        Floats between{};
        for (const Sum *sum = first + channels; sum < last; sum += channels)
            between += fourSums(sum);
        const Floats average = fourSums(first) * column.firstShare + between * wholeShare +
                               fourSums(last) * column.lastShare + half;
        std::memcpy(target, &average, sizeof average);
        target += channels;
    }
    std::transform(m_averages.data(), target, m_averaged.data(), [](float average) {
        return static_cast<unsigned char>(static_cast<std::int32_t>(average));
    });
}

template <class Sum>
void AreaAverage::averageRow(const Sum *sums) {
    switch (m_channels) {
    case 1:
        return averageColumns<1>(sums);
    case 2:
        return averageColumns<2>(sums);
    case 3:
        return averageColumns<3>(sums);
    default:
        return averageColumns<4>(sums);
    }
}

void AreaAverage::finishRow() {
    if (m_isNarrow) {
        averageRow(m_narrow.data());
        std::ranges::fill(m_narrow, std::uint16_t{0});
        return;
    }
    mergeWhole();
    averageRow(m_wide.data());
    std::ranges::fill(m_wide, 0U);
}

} // namespace tembra
