#pragma once

#include "shelf/FileItemCell.h"

namespace tembra {

// A tile of the file tray: a file of any kind, greyed while it cannot be reached.
class ClipboardCell final : public FileItemCell {
    Q_OBJECT

public:
    using FileItemCell::FileItemCell;

    void setTile(const FileTile &tile) override;

protected:
    void paintKindIcon(QPainter &painter) override;

private:
    // The desktop's for the kind of file; null where its icon theme has none.
    QPixmap m_kindIcon;
};

} // namespace tembra
