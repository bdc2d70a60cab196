#include "shelf/ScreenshotCellPool.h"

#include "shelf/NativeScreenshotCell.h"

#include <utility>

namespace tembra {

ScreenshotCellPool::ScreenshotCellPool(const FilePresentation &presentation, QWidget &parent)
    : m_presentation(presentation), m_parent(parent) {}

NativeScreenshotCell *ScreenshotCellPool::take() {
    if (m_spare.empty())
        return new NativeScreenshotCell(m_presentation, &m_parent);
    NativeScreenshotCell *cell = m_spare.back();
    m_spare.pop_back();
    return cell;
}

void ScreenshotCellPool::show(NativeScreenshotCell &cell, const Shot &shot) {
    const bool isSameFile = cell.path() == shot.location;
    if (isSameFile && cell.revision() == shot.stamp)
        return;
    // A file that changed keeps its old picture until the new one is there.
    cell.configure(shot.location, shot.stamp, isSameFile ? cell.image() : QImage());
}

void ScreenshotCellPool::arrange(const ScreenshotGridState &state, const ScreenshotGridLayout &layout,
                                 ScreenshotGridLayout::Range range, bool moves) {
    QMultiHash<QString, NativeScreenshotCell *> before;
    for (const auto &[index, cell] : std::exchange(m_shown, {}))
        before.insert(cell->path(), cell);
    std::vector<int> missing;
    QSet<const NativeScreenshotCell *> stayed;
    for (int index = range.first; index < range.last; ++index) {
        if (NativeScreenshotCell *cell = before.take(state.at(index).location))
            stayed.insert(m_shown.emplace(index, cell).first->second);
        else
            missing.push_back(index);
    }
    for (NativeScreenshotCell *cell : std::as_const(before)) {
        cell->hide();
        cell->prepareForReuse();
        m_spare.push_back(cell);
    }
    for (const int index : missing)
        m_shown.emplace(index, take());
    for (const auto &[index, cell] : m_shown) {
        const Shot &shot = state.at(index);
        cell->setItemRect(layout.itemRect(index), moves && stayed.contains(cell));
        show(*cell, shot);
        cell->setShowsFileName(state.showFileNames);
        cell->setPinned(state.pinnedPaths.contains(shot.location));
        cell->show();
    }
}

} // namespace tembra
