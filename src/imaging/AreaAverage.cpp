#include "imaging/AreaAverage.h"

#include <algorithm>

namespace tembra {

namespace {

// So many bytes can be summed in sixteen bits.
constexpr std::uint32_t mostWholeRows = 257;

} // namespace

AreaAverage::AreaAverage(QSize source, QSize target, int channels)
    : m_sourceWidth(static_cast<std::uint32_t>(source.width())),
      m_sourceHeight(static_cast<std::uint32_t>(source.height())),
      m_targetWidth(static_cast<std::uint32_t>(target.width())),
      m_targetHeight(static_cast<std::uint32_t>(target.height())),
      m_channels(static_cast<std::uint32_t>(channels)),
      m_unitsMissing(m_sourceHeight),
      m_whole(std::size_t{m_sourceWidth} * m_channels),
      m_weighted(m_whole.size()),
      m_sums(m_whole.size()) {
    m_result.resize(std::size_t{m_targetWidth} * m_targetHeight * m_channels);
    m_columns.reserve(m_targetWidth);
    const double area = static_cast<double>(m_sourceWidth) * m_sourceHeight;
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

void AreaAverage::add(const unsigned char *row) {
    const std::uint32_t height = m_targetHeight;
    if (m_unitsMissing > height) {
        m_unitsMissing -= height;
        addWhole(row);
        return;
    }
    const std::uint32_t rest = height - m_unitsMissing;
    addShare(row, m_unitsMissing);
    finishRow();
    m_unitsMissing = m_sourceHeight - rest;
    if (rest > 0)
        addShare(row, rest);
}

void AreaAverage::addShare(const unsigned char *row, std::uint32_t weight) {
    // Sixteen bits by sixteen are what processors multiply by the dozen.
    const auto share = static_cast<std::uint16_t>(weight);
    for (std::size_t i = 0; i < m_weighted.size(); ++i)
        m_weighted[i] += std::uint32_t{share} * std::uint32_t{std::uint16_t{row[i]}};
}

void AreaAverage::addWhole(const unsigned char *row) {
    for (std::size_t i = 0; i < m_whole.size(); ++i)
        m_whole[i] = static_cast<std::uint16_t>(m_whole[i] + row[i]);
    if (++m_wholeRows == mostWholeRows)
        mergeWhole();
}

void AreaAverage::mergeWhole() {
    if (m_wholeRows == 0)
        return;
    const auto share = static_cast<std::uint16_t>(m_targetHeight);
    for (std::size_t i = 0; i < m_whole.size(); ++i)
        m_weighted[i] += std::uint32_t{share} * std::uint32_t{m_whole[i]};
    std::ranges::fill(m_whole, std::uint16_t{0});
    m_wholeRows = 0;
}

template <std::uint32_t channels>
void AreaAverage::averageColumns() {
    // Sums of a row fit a float's 24 bits, and a float is told from its neighbours far more finely than a
    // byte.
    std::ranges::transform(m_weighted, m_sums.begin(), [](std::uint32_t sum) {
        return static_cast<float>(static_cast<std::int32_t>(sum));
    });
    constexpr float half = 0.5F;
    unsigned char *result = m_result.data() + m_resultSize;
    for (const Column &column : m_columns) {
        const float *first = m_sums.data() + std::size_t{column.first} * channels;
        const float *last = m_sums.data() + std::size_t{column.last} * channels;
        for (std::uint32_t channel = 0; channel < channels; ++channel) {
            float between = 0;
            for (const float *sum = first + channels; sum < last; sum += channels)
                between += sum[channel];
            *result++ =
                static_cast<unsigned char>(first[channel] * column.firstShare + between * m_wholeShare +
                                           last[channel] * column.lastShare + half);
        }
    }
}

void AreaAverage::finishRow() {
    mergeWhole();
    switch (m_channels) {
    case 1:
        averageColumns<1>();
        break;
    case 2:
        averageColumns<2>();
        break;
    case 3:
        averageColumns<3>();
        break;
    default:
        averageColumns<4>();
    }
    m_resultSize += std::size_t{m_targetWidth} * m_channels;
    std::ranges::fill(m_weighted, 0U);
}

} // namespace tembra
