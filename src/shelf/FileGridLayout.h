#pragma once

#include <QPoint>
#include <QRect>

#include <optional>
#include <span>
#include <vector>

namespace tembra {

// Where the grid's tiles and titles lie, in the document's points. A value: it knows counts, not shots, and
// costs the same for any number of them.
class FileGridLayout {
public:
    struct Section {
        int count = 0;
        bool hasHeader = false;
    };
    // From `first` up to but without `last`.
    struct Range {
        int first = 0;
        int last = 0;
        bool operator==(const Range &) const = default;
    };
    enum class Direction { left, right, up, down };

    FileGridLayout() = default;
    // Right to left, the first tile is the rightmost.
    FileGridLayout(int width, std::span<const Section> sections, bool showFileNames,
                   Qt::LayoutDirection direction = Qt::LeftToRight);

    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] int columns() const { return m_columns; }
    [[nodiscard]] int count() const;
    [[nodiscard]] QRect itemRect(int index) const;
    // The item, and in the first row of a section also its title.
    [[nodiscard]] QRect itemRectWithTitle(int index) const;
    // Empty for a section without a title or without shots.
    [[nodiscard]] QRect headerRect(int section) const;
    // The items of all rows that touch the span.
    [[nodiscard]] Range itemsWithin(int top, int bottom) const;
    [[nodiscard]] std::optional<int> itemAt(QPoint point) const;
    // The item that an arrow key leads to; the same item at the ends.
    [[nodiscard]] int neighbour(int index, Direction direction) const;

private:
    struct Block {
        int first = 0;
        int count = 0;
        bool hasHeader = false;
        int itemsTop = 0;
    };

    [[nodiscard]] const Block &blockOf(int index) const;
    [[nodiscard]] QRect headerRect(const Block &block) const;
    [[nodiscard]] QRect mirrored(const QRect &rect) const;
    [[nodiscard]] int rows(const Block &block) const { return (block.count + m_columns - 1) / m_columns; }
    [[nodiscard]] int pitch() const;
    // Nearest to the column in the row; negative rows count from the end.
    [[nodiscard]] int item(const Block &block, int row, int column) const;

    int m_width = 0;
    bool m_isMirrored = false;
    int m_columns = 1;
    int m_itemHeight = 0;
    int m_height = 0;
    std::vector<Block> m_blocks;
};

} // namespace tembra
