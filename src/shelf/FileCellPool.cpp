#include "shelf/FileCellPool.h"

#include "shelf/FileItemCell.h"

#include <utility>

namespace tembra {

FileCellPool::FileCellPool(std::function<FileItemCell *()> makeCell) : m_makeCell(std::move(makeCell)) {}

FileItemCell *FileCellPool::take() {
    if (m_spare.empty())
        return m_makeCell();
    FileItemCell *cell = m_spare.back();
    m_spare.pop_back();
    return cell;
}

void FileCellPool::arrange(const FileGridState &state, const FileGridLayout &layout,
                           FileGridLayout::Range range, bool moves) {
    QMultiHash<QString, FileItemCell *> before;
    for (const auto &[index, cell] : std::exchange(m_shown, {}))
        before.insert(cell->path(), cell);
    std::vector<int> missing;
    QSet<const FileItemCell *> stayed;
    for (int index = range.first; index < range.last; ++index) {
        if (FileItemCell *cell = before.take(state.at(index).path))
            stayed.insert(m_shown.emplace(index, cell).first->second);
        else
            missing.push_back(index);
    }
    for (FileItemCell *cell : std::as_const(before)) {
        cell->hide();
        cell->prepareForReuse();
        m_spare.push_back(cell);
    }
    for (const int index : missing)
        m_shown.emplace(index, take());
    for (const auto &[index, cell] : m_shown) {
        cell->setItemRect(layout.itemRect(index), moves && stayed.contains(cell));
        cell->setTile(state.at(index));
        cell->setShowsFileName(state.showFileNames);
        cell->show();
    }
}

} // namespace tembra
