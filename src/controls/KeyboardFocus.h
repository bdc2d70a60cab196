#pragma once

#include <QObject>

class QWidget;

namespace tembra {

// Tells whether the widget's focus is to be shown: only while the keyboard is what leads the focus, not after
// a click. Lives in the widget it watches.
class KeyboardFocus final : public QObject {
public:
    explicit KeyboardFocus(QWidget &widget);

    [[nodiscard]] bool isShown() const { return m_isShown; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setShown(bool isShown);

    QWidget &m_widget;
    bool m_isShown = false;
};

} // namespace tembra
