#include "controls/AccessibleControls.h"

#include "controls/DropdownList.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraSettingsSection.h"

#include <QAccessibleWidget>

namespace tembra {

namespace {

class AccessibleDropdown final : public QAccessibleWidget {
public:
    explicit AccessibleDropdown(TembraDropdownPopup &dropdown)
        : QAccessibleWidget(&dropdown, QAccessible::ComboBox), m_dropdown(dropdown) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? m_dropdown.currentText() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = m_dropdown.isOpen();
        state.collapsed = !m_dropdown.isOpen();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_dropdown.isEnabled())
            names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString &name) override {
        if (name == showMenuAction() && m_dropdown.isEnabled())
            m_dropdown.open();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    TembraDropdownPopup &m_dropdown;
};

QAccessibleInterface *accessibleControl(const QString &, QObject *object) {
    if (auto *dropdown = qobject_cast<TembraDropdownPopup *>(object))
        return new AccessibleDropdown(*dropdown);
    if (qobject_cast<TembraSegmentedControl *>(object) || qobject_cast<TembraSettingsSection *>(object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleControls() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleControl);
}

} // namespace tembra
