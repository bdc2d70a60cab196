#pragma once

#include <QObject>

#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractButton;
QT_END_NAMESPACE

namespace tembra {

// Makes one stop for Tab of a row of buttons: the arrow keys, Home and End move the focus within, Space and
// Return click. Clicks do not take the focus away from what is being worked on. Lives in the row.
class RovingFocus final : public QObject {
public:
    explicit RovingFocus(QObject *row);

    void add(QAbstractButton *button);
    // The button that Tab leads to while none has the focus.
    void setEntrance(QAbstractButton *button);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool move(const QAbstractButton &from, int key);

    std::vector<QAbstractButton *> m_buttons;
};

} // namespace tembra
