#include "shelf/AccessibleShelf.h"

#include "shelf/AccessibleFiles.h"
#include "shelf/CaptureNotificationView.h"
#include "shelf/PreviewView.h"
#include "shelf/ShelfButton.h"
#include "shelf/ShelfHeader.h"

#include <QAccessibleWidget>

namespace tembra {

namespace {

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
    if (auto *view = qobject_cast<FileCollectionView *>(object))
        return new AccessibleFiles(*view);
    if (auto *button = qobject_cast<ShelfButton *>(object))
        return button->kind() == ShelfButton::Kind::tab ? new AccessibleTab(*button) : nullptr;
    const std::pair<bool, QAccessible::Role> parts[] = {
        {qobject_cast<ShelfHeader *>(object), QAccessible::PageTabList},
        {qobject_cast<CaptureNotificationView *>(object), QAccessible::Notification},
        {qobject_cast<ScreenshotSectionHeader *>(object), QAccessible::Heading},
        {qobject_cast<PreviewView *>(object), QAccessible::Graphic}};
    for (const auto &[isMeant, role] : parts) {
        if (isMeant)
            return new QAccessibleWidget(static_cast<QWidget *>(object), role);
    }
    return nullptr;
}

} // namespace

void installAccessibleShelf() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleShelf);
}

} // namespace tembra
