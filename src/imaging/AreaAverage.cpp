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
      m_weighted(m_whole.size()) {
    m_result.reserve(std::size_t{m_targetWidth} * m_targetHeight * m_channels);
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
    for (std::size_t i = 0; i < m_weighted.size(); ++i)
        m_weighted[i] += weight * row[i];
}

void AreaAverage::addWhole(const unsigned char *row) {
    for (std::size_t i = 0; i < m_whole.size(); ++i)
        m_whole[i] = static_cast<std::uint16_t>(m_whole[i] + row[i]);
    if (++m_wholeRows == mostWholeRows)
        mergeWhole();
}

void AreaAverage::mergeWhole() {
    for (std::size_t i = 0; i < m_whole.size(); ++i)
        m_weighted[i] += m_targetHeight * m_whole[i];
    std::ranges::fill(m_whole, std::uint16_t{0});
    m_wholeRows = 0;
}

void AreaAverage::finishRow() {
    mergeWhole();
    const std::uint64_t area = std::uint64_t{m_sourceWidth} * m_sourceHeight;
    for (std::uint32_t x = 0; x < m_targetWidth; ++x) {
        const std::uint64_t from = std::uint64_t{x} * m_sourceWidth;
        const std::uint64_t to = from + m_sourceWidth;
        const std::uint64_t first = from / m_targetWidth;
        const std::uint64_t last = (to - 1) / m_targetWidth;
        const std::uint64_t firstShare = (first + 1) * m_targetWidth - from;
        const std::uint64_t lastShare = to - last * m_targetWidth;
        for (std::uint32_t channel = 0; channel < m_channels; ++channel) {
            const auto at = [&](std::uint64_t column) -> std::uint64_t {
                return m_weighted[column * m_channels + channel];
            };
            std::uint64_t sum = 0;
            for (std::uint64_t column = first + 1; column < last; ++column)
                sum += at(column);
            sum *= m_targetWidth;
            sum += first == last ? at(first) * m_sourceWidth : at(first) * firstShare + at(last) * lastShare;
            m_result.push_back(static_cast<unsigned char>((sum + area / 2) / area));
        }
    }
    std::ranges::fill(m_weighted, 0U);
}

} // namespace tembra
