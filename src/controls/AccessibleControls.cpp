#include "controls/AccessibleControls.h"

#include "controls/AccessibleChoices.h"
#include "controls/SpokenNotice.h"
#include "controls/TembraDropdownPopup.h"
#include "controls/TembraSegment.h"
#include "controls/TembraSegmentedControl.h"
#include "controls/TembraSettingsSection.h"
#include "controls/TextLabel.h"

#include <QAccessibleWidget>
#include <QLabel>

namespace tembra {

namespace {

class AccessibleDropdown final : public QAccessibleWidget {
public:
    explicit AccessibleDropdown(TembraDropdownPopup &dropdown)
        : QAccessibleWidget(&dropdown, QAccessible::ComboBox), m_dropdown(dropdown) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        // Combo boxes have no value in AT-SPI, and their name is the row's.
        const QString above = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Description)
            return above.isEmpty() ? m_dropdown.currentText() : m_dropdown.currentText() + u'\n' + above;
        return kind == QAccessible::Value ? m_dropdown.currentText() : above;
    }

    // The list while it is open, which Qt takes for a window of its own.
    [[nodiscard]] int childCount() const override { return m_dropdown.isOpen() ? 1 : 0; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_dropdown.list()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override {
        return child && m_dropdown.isOpen() && child->object() == m_dropdown.list() ? 0 : -1;
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

// Qt's own changes the state of a button that can be checked as if nobody had clicked it.
class AccessibleButton final : public QAccessibleWidget {
public:
    explicit AccessibleButton(QAbstractButton &button)
        : QAccessibleWidget(&button, QAccessible::Button), m_button(button) {}

    [[nodiscard]] QAccessible::Role role() const override {
        if (!m_button.isCheckable())
            return QAccessible::Button;
        return m_button.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? m_button.text() : own;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_button.isCheckable();
        state.checked = m_button.isChecked();
        state.pressed = m_button.isDown();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button.isEnabled())
            names.prepend(m_button.isCheckable() ? toggleAction() : pressAction());
        return names;
    }

    void doAction(const QString &name) override {
        if (name == toggleAction() || name == pressAction())
            m_button.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton &m_button;
};

class AccessibleHeading final : public QAccessibleWidget {
public:
    explicit AccessibleHeading(QLabel &label)
        : QAccessibleWidget(&label, QAccessible::Heading), m_label(label) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_label.text() : QAccessibleWidget::text(kind);
    }

private:
    const QLabel &m_label;
};

// Qt takes a window of our own making for a part of something.
bool isOwnWindow(const QString &kind, const QObject &object) {
    if (kind != u"QWidget" || !object.isWidgetType())
        return false;
    const auto &widget = static_cast<const QWidget &>(object);
    return widget.isWindow() && (widget.windowType() == Qt::Window || widget.windowType() == Qt::Tool);
}

// `kind` is a class that the object is of, from the most special one to the most general.
QAccessibleInterface *accessibleControl(const QString &kind, QObject *object) {
    if (auto *dropdown = qobject_cast<TembraDropdownPopup *>(object))
        return new AccessibleDropdown(*dropdown);
    if (qobject_cast<PaintedButton *>(object) || qobject_cast<TembraSegment *>(object))
        return new AccessibleButton(*qobject_cast<QAbstractButton *>(object));
    if (auto *list = qobject_cast<DropdownList *>(object))
        return new AccessibleChoices(*list);
    auto *label = qobject_cast<QLabel *>(object);
    if (label && isHeading(*label))
        return new AccessibleHeading(*label);
    if (qobject_cast<TembraSegmentedControl *>(object) || qobject_cast<TembraSettingsSection *>(object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    if (qobject_cast<SpokenNotice *>(object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Notification);
    if (object && isOwnWindow(kind, *object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibleControls() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleControl);
}

} // namespace tembra
