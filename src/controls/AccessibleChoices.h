#pragma once

#include "controls/DropdownList.h"

#include <QAccessibleWidget>

#include <vector>

namespace tembra {

// The open list of a dropdown as assistive programs see it: its choices, each of which can be chosen. Owned
// by Qt; main thread.
class AccessibleChoices final : public QAccessibleWidget {
public:
    explicit AccessibleChoices(DropdownList &list);
    ~AccessibleChoices() override;
    AccessibleChoices(const AccessibleChoices &) = delete;
    AccessibleChoices &operator=(const AccessibleChoices &) = delete;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    DropdownList &m_list;
    // Those that were asked for, and all before them.
    mutable std::vector<QAccessible::Id> m_choices;
};

} // namespace tembra
