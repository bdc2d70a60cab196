#include "controls/AccessibleChoices.h"

#include <QPointer>

#include <algorithm>

namespace tembra {

namespace {

class AccessibleChoice final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleChoice(DropdownList &list, int row) : m_list(&list), m_row(row) {}

    [[nodiscard]] bool isValid() const override { return !m_list.isNull(); }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override { return m_list ? m_list->windowHandle() : nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(m_list);
    }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return m_list && kind == QAccessible::Name ? index().data().toString() : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override {
        if (!m_list)
            return {};
        const QRect local = m_list->visualRect(index());
        return {m_list->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !m_list;
        if (!m_list)
            return state;
        state.focusable = true;
        state.selectable = true;
        state.selected = m_list->currentIndex().row() == m_row;
        state.focused = state.selected;
        state.invisible = !m_list->isVisible();
        return state;
    }
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                    : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &name) override {
        if (m_list && name == pressAction())
            m_list->choose(index());
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] QModelIndex index() const { return m_list->model()->index(m_row, 0); }

    const QPointer<DropdownList> m_list;
    const int m_row;
};

} // namespace

AccessibleChoices::AccessibleChoices(DropdownList &list)
    : QAccessibleWidget(&list, QAccessible::List), m_list(list) {}

AccessibleChoices::~AccessibleChoices() {
    for (const QAccessible::Id id : m_choices)
        QAccessible::deleteAccessibleInterface(id);
}

int AccessibleChoices::childCount() const {
    return m_list.model() ? m_list.model()->rowCount() : 0;
}

QAccessibleInterface *AccessibleChoices::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    for (auto row = static_cast<int>(m_choices.size()); row <= index; ++row)
        m_choices.push_back(QAccessible::registerAccessibleInterface(new AccessibleChoice(m_list, row)));
    return QAccessible::accessibleInterface(m_choices[static_cast<std::size_t>(index)]);
}

int AccessibleChoices::indexOfChild(const QAccessibleInterface *child) const {
    const auto found = std::ranges::find_if(
        m_choices, [child](QAccessible::Id id) { return QAccessible::accessibleInterface(id) == child; });
    return found == m_choices.end() ? -1 : static_cast<int>(found - m_choices.begin());
}

QAccessibleInterface *AccessibleChoices::focusChild() const {
    return child(m_list.currentIndex().row());
}

} // namespace tembra
