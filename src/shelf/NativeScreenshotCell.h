#pragma once

#include "shelf/FileItemCell.h"

namespace tembra {

// A screenshot's tile: a file's, with badges when it is pinned and when it carries edits.
class NativeScreenshotCell final : public FileItemCell {
    Q_OBJECT

public:
    using FileItemCell::FileItemCell;

    void setTile(const FileTile &tile) override;
    void setPinned(bool pinned);
    void setEdited(bool edited);
    [[nodiscard]] bool isPinned() const { return m_pinned; }
    [[nodiscard]] bool isEdited() const { return m_edited; }

protected:
    void paintBadges(QPainter &painter) override;

private:
    void assign(bool &badge, bool value);
    void paintEdited(QPainter &painter) const;

    bool m_pinned = false;
    bool m_edited = false;
};

} // namespace tembra
