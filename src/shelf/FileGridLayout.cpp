#include "shelf/FileGridLayout.h"

#include "shelf/ShelfLayout.h"

#include <algorithm>

namespace tembra {

namespace {

using Grid = ShelfLayout::Grid;

constexpr int headerHeight = 15;
// The title stands close to its tiles, in the room that the section's inset leaves above them.
constexpr int headerToItems = 8;
constexpr int headerLeft = 28;

} // namespace

FileGridLayout::FileGridLayout(int width, std::span<const Section> sections, bool showFileNames,
                               Qt::LayoutDirection direction)
    : m_width(width),
      m_isMirrored(direction == Qt::RightToLeft),
      m_columns(Grid::columns(width)),
      m_itemHeight(Grid::heightOfItem(showFileNames)) {
    int first = 0;
    for (const Section &section : sections) {
        // The inset below the section before is part of a title's room.
        const int header = m_height == 0 ? headerHeight : headerHeight - Grid::sectionInset.bottom();
        const bool isShown = section.count > 0;
        Block block{first, section.count, section.hasHeader && isShown, m_height + Grid::sectionInset.top()};
        if (block.hasHeader)
            block.itemsTop += header;
        if (isShown)
            m_height =
                block.itemsTop + rows(block) * pitch() - Grid::lineSpacing + Grid::sectionInset.bottom();
        first += section.count;
        m_blocks.push_back(block);
    }
}

int FileGridLayout::pitch() const {
    return m_itemHeight + Grid::lineSpacing;
}

int FileGridLayout::count() const {
    return m_blocks.empty() ? 0 : m_blocks.back().first + m_blocks.back().count;
}

const FileGridLayout::Block &FileGridLayout::blockOf(int index) const {
    const auto block = std::ranges::find_if(
        m_blocks, [=](const Block &candidate) { return index < candidate.first + candidate.count; });
    Q_ASSERT(block != m_blocks.end());
    return *block;
}

QRect FileGridLayout::itemRect(int index) const {
    const Block &block = blockOf(index);
    const int place = index - block.first;
    const int x = Grid::sectionInset.left() + place % m_columns * (Grid::itemWidth + Grid::interItemSpacing);
    return mirrored({x, block.itemsTop + place / m_columns * pitch(), Grid::itemWidth, m_itemHeight});
}

QRect FileGridLayout::mirrored(const QRect &rect) const {
    return m_isMirrored ? rect.translated(m_width - rect.width() - 2 * rect.x(), 0) : rect;
}

QRect FileGridLayout::itemRectWithTitle(int index) const {
    const Block &block = blockOf(index);
    const QRect item = itemRect(index);
    return index - block.first < m_columns ? item.united(headerRect(block)) : item;
}

QRect FileGridLayout::headerRect(int section) const {
    return headerRect(m_blocks[static_cast<std::size_t>(section)]);
}

QRect FileGridLayout::headerRect(const Block &block) const {
    if (!block.hasHeader)
        return {};
    const int top = block.itemsTop - headerToItems - headerHeight;
    return mirrored(
        {headerLeft, top, std::max(0, m_width - headerLeft - Grid::sectionInset.right()), headerHeight});
}

FileGridLayout::Range FileGridLayout::itemsWithin(int top, int bottom) const {
    std::optional<Range> range;
    for (const Block &block : m_blocks) {
        const int firstRow = std::max(0, (top - block.itemsTop) / pitch());
        const int lastRow = bottom <= block.itemsTop ? 0 : (bottom - block.itemsTop - 1) / pitch() + 1;
        const Range items{block.first + std::min(firstRow, rows(block)) * m_columns,
                          block.first + std::min(block.count, std::min(lastRow, rows(block)) * m_columns)};
        if (items.first < items.last)
            range = Range{range ? range->first : items.first, items.last};
    }
    return range.value_or(Range{});
}

std::optional<int> FileGridLayout::itemAt(QPoint point) const {
    const Range row = itemsWithin(point.y(), point.y() + 1);
    for (int index = row.first; index < row.last; ++index) {
        if (itemRect(index).contains(point))
            return index;
    }
    return std::nullopt;
}

int FileGridLayout::item(const Block &block, int row, int column) const {
    const int fromStart = row < 0 ? rows(block) + row : row;
    return block.first + std::min(fromStart * m_columns + column, block.count - 1);
}

int FileGridLayout::neighbour(int index, Direction direction) const {
    const Block &block = blockOf(index);
    const int row = (index - block.first) / m_columns;
    const int column = (index - block.first) % m_columns;
    switch (direction) {
    case Direction::left:
    case Direction::right: {
        const bool isBack = (direction == Direction::left) != m_isMirrored;
        return std::clamp(isBack ? index - 1 : index + 1, 0, count() - 1);
    }
    case Direction::up: {
        if (row > 0)
            return item(block, row - 1, column);
        const auto before = std::find_if(m_blocks.rbegin(), m_blocks.rend(), [&](const Block &candidate) {
            return candidate.count > 0 && candidate.first < block.first;
        });
        return before == m_blocks.rend() ? index : item(*before, -1, column);
    }
    case Direction::down: {
        if (row + 1 < rows(block))
            return item(block, row + 1, column);
        const auto after = std::ranges::find_if(m_blocks, [&](const Block &candidate) {
            return candidate.count > 0 && candidate.first > block.first;
        });
        return after == m_blocks.end() ? index : item(*after, 0, column);
    }
    }
    Q_UNREACHABLE();
}

} // namespace tembra
