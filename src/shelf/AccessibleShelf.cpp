#include "shelf/AccessibleShelf.h"

#include "shelf/FileCollectionView.h"
#include "shelf/FileItemCell.h"
#include "shelf/ShelfButton.h"

#include <QAccessibleWidget>

namespace tembra {

namespace {

class AccessibleTile final : public QAccessibleWidget {
public:
    explicit AccessibleTile(FileItemCell &cell)
        : QAccessibleWidget(&cell, QAccessible::ListItem), m_cell(cell) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.multiSelectable = true;
        state.selected = m_cell.isSelected();
        return state;
    }

private:
    const FileItemCell &m_cell;
};

class AccessibleTab final : public QAccessibleWidget {
public:
    explicit AccessibleTab(ShelfButton &button)
        : QAccessibleWidget(&button, QAccessible::PageTab), m_button(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_button.isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override {
        if (name == pressAction())
            m_button.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ShelfButton &m_button;
};

QAccessibleInterface *accessibleShelf(const QString &, QObject *object) {
    if (auto *cell = qobject_cast<FileItemCell *>(object))
        return new AccessibleTile(*cell);
    if (auto *view = qobject_cast<FileCollectionView *>(object))
        return new QAccessibleWidget(view, QAccessible::List);
    auto *button = qobject_cast<ShelfButton *>(object);
    return button && button->isCheckable() ? new AccessibleTab(*button) : nullptr;
}

} // namespace

void installAccessibleShelf() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleShelf);
}

} // namespace tembra
