#pragma once

#include <QSize>

#include <cstdint>
#include <vector>

namespace tembra {

// Reduces a picture that comes row by row: every pixel of the result is the average of the area that it
// stands for, the pixels on its border counted by the share that lies inside, rounded to the nearest.
// Needs memory for a few rows only. Neither side of the source may be shorter than the target's or longer
// than 65,535.
class AreaAverage {
public:
    AreaAverage(QSize source, QSize target, int channels);

    // Takes the next row, from the top. Gives the row of the target that it completes, which is valid until
    // the next call; null when it completes none.
    [[nodiscard]] const unsigned char *add(const unsigned char *row);

private:
    void addShare(const unsigned char *row, std::uint32_t weight);
    void addWhole(const unsigned char *row);
    void mergeWhole();
    void finishRow();
    template <class Sum>
    void averageRow(const Sum *sums);
    template <std::uint32_t channels, class Sum>
    void averageColumns(const Sum *sums);

    // The columns of the source that a column of the target stands for, and how much of the outer two,
    // as shares of the area that a pixel of the target stands for.
    struct Column {
        std::uint32_t first = 0;
        std::uint32_t last = 0;
        float firstShare = 0;
        float lastShare = 0;
    };

    const std::uint32_t m_sourceWidth;
    const std::uint32_t m_targetWidth;
    const std::uint32_t m_channels;
    // Rows of the source and of the target are so many units high that borders fall on whole units, and so do
    // weights. Columns are as many units wide as the other picture has columns.
    const std::uint32_t m_sourceRow;
    const std::uint32_t m_targetRow;
    std::uint32_t m_unitsMissing;
    // Sums over the target's row at hand: in sixteen bits, where they fit, by the heights of the rows, else
    // of the rows that lie in it wholly, and all by their heights in thirty-two.
    const bool m_isNarrow;
    std::vector<std::uint16_t> m_narrow;
    std::uint32_t m_wholeRows = 0;
    std::vector<std::uint32_t> m_wide;
    std::vector<float> m_averages;
    std::vector<Column> m_columns;
    // Of each column between the outer two.
    float m_wholeShare = 0;
    std::vector<unsigned char> m_averaged;
};

} // namespace tembra
