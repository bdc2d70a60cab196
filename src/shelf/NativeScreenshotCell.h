#pragma once

#include "shelf/FileItemCell.h"

namespace tembra {

// A screenshot's tile: a file's, with a badge when it is pinned.
class NativeScreenshotCell final : public FileItemCell {
    Q_OBJECT

public:
    using FileItemCell::FileItemCell;

    void setTile(const FileTile &tile) override;
    void setPinned(bool pinned);
    [[nodiscard]] bool isPinned() const { return m_pinned; }

protected:
    void paintBadges(QPainter &painter) override;

private:
    bool m_pinned = false;
};

} // namespace tembra
