#pragma once

#include "controls/KeyboardFocus.h"

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace tembra {

// Paints the name of a page of the settings.
class SettingsSidebarDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int isGreyRole = Qt::UserRole;

    explicit SettingsSidebarDelegate(QAbstractItemView &list);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QAbstractItemView &m_list;
    KeyboardFocus m_keyboardFocus;
};

} // namespace tembra
