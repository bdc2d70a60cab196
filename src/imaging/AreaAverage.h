#pragma once

#include <QSize>

#include <cstdint>
#include <span>
#include <vector>

namespace tembra {

// Reduces a picture that comes row by row: every pixel of the result is the average of the area that it
// stands for, the pixels on its border counted by the share that lies inside, rounded to the nearest.
// Needs memory for a few rows only. Neither side of the source may be shorter than the target's or longer
// than 65,535.
class AreaAverage {
public:
    AreaAverage(QSize source, QSize target, int channels);

    // The next row, from the top.
    void add(const unsigned char *row);
    // The whole result, row after row, once every row of the source was added.
    [[nodiscard]] std::span<const unsigned char> result() const { return m_result; }

private:
    void addShare(const unsigned char *row, std::uint32_t weight);
    void addWhole(const unsigned char *row);
    void mergeWhole();
    void finishRow();
    template <std::uint32_t channels>
    void averageColumns();

    // The columns of the source that a column of the target stands for, and how much of the outer two,
    // as shares of the area that a pixel of the target stands for.
    struct Column {
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        float firstShare = 0;
        float lastShare = 0;
    };

    const std::uint32_t m_sourceWidth;
    const std::uint32_t m_sourceHeight;
    const std::uint32_t m_targetWidth;
    const std::uint32_t m_targetHeight;
    const std::uint32_t m_channels;
    // A row of the source is as many units high as the target has rows, and a row of the target as many as
    // the source has: borders fall on whole units, and so do weights. The same holds for columns.
    std::uint32_t m_unitsMissing;
    // Sums over the target's row at hand: rows that lie in it wholly, and all weighted by their height.
    std::vector<std::uint16_t> m_whole;
    std::uint32_t m_wholeRows = 0;
    std::vector<std::uint32_t> m_weighted;
    std::vector<float> m_sums;
    std::vector<Column> m_columns;
    // Of each column between the outer two.
    float m_wholeShare = 0;
    std::vector<unsigned char> m_result;
    std::size_t m_resultSize = 0;
};

} // namespace tembra
