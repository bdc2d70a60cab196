#pragma once

#include "shelf/FileGridLayout.h"
#include "shelf/FileGridState.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace tembra {

class FileItemCell;

// The cells of the files that can be seen, and those that wait to be used again. There are never more than
// were seen at once.
class FileCellPool {
public:
    // `makeCell` makes one more cell, owned by its parent.
    explicit FileCellPool(std::function<FileItemCell *()> makeCell);

    // Gives every file of the range its cell in its place. A file keeps the cell that shows it already.
    void arrange(const FileGridState &state, const FileGridLayout &layout, FileGridLayout::Range range,
                 bool moves);

    // The cells that are shown, by index.
    [[nodiscard]] const std::map<int, FileItemCell *> &shown() const { return m_shown; }
    [[nodiscard]] int count() const { return static_cast<int>(m_shown.size() + m_spare.size()); }

private:
    FileItemCell *take();

    const std::function<FileItemCell *()> m_makeCell;
    std::map<int, FileItemCell *> m_shown;
    std::vector<FileItemCell *> m_spare;
};

} // namespace tembra
