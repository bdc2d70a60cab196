#pragma once

#include <QStyledItemDelegate>

namespace tembra {

// Paints the sidebar's tiles.
class EditorSidebarDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr QSize tile{96, 63};
    static constexpr int gap = 12;
    static constexpr int pitch = tile.height() + gap;
    // Above the first tile and below the last, beyond half a gap.
    static constexpr int endMargin = 8;

    explicit EditorSidebarDelegate(QWidget *sidebar);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    // The keyboard's focus is to be seen on the current tile.
    void setFocusShown(bool isShown) { m_isFocusShown = isShown; }

private:
    const QWidget &m_sidebar;
    bool m_isFocusShown = false;
};

} // namespace tembra
