#pragma once

#include <QStyledItemDelegate>

namespace tembra {

// Paints a dropdown's choices: a tick before the current one, a filled field where the keyboard or pointer
// is.
class DropdownDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int rowHeight = 28;
    // What stands beside a title.
    static constexpr int surroundings = 44;

    DropdownDelegate(int chosen, QWidget *list);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const int m_chosen;
    const QWidget &m_list;
};

} // namespace tembra
