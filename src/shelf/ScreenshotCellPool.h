#pragma once

#include "shelf/FilePresentation.h"
#include "shelf/ScreenshotGridLayout.h"
#include "shelf/ScreenshotGridState.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <vector>

class QWidget;

namespace tembra {

class NativeScreenshotCell;

// The cells of the shots that can be seen, and those that wait to be used again. There are never more than
// were seen at once.
class ScreenshotCellPool {
public:
    ScreenshotCellPool(const FilePresentation &presentation, QWidget &parent);

    // Gives every shot of the range its cell in its place. A shot keeps the cell that shows it already.
    void arrange(const ScreenshotGridState &state, const ScreenshotGridLayout &layout,
                 ScreenshotGridLayout::Range range, bool moves);

    // The cells that are shown, by index.
    [[nodiscard]] const std::map<int, NativeScreenshotCell *> &shown() const { return m_shown; }
    [[nodiscard]] int count() const { return static_cast<int>(m_shown.size() + m_spare.size()); }

private:
    NativeScreenshotCell *take();
    void show(NativeScreenshotCell &cell, const Shot &shot);

    const FilePresentation m_presentation;
    QWidget &m_parent;
    std::map<int, NativeScreenshotCell *> m_shown;
    std::vector<NativeScreenshotCell *> m_spare;
};

} // namespace tembra
