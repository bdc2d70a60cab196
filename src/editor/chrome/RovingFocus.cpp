#include "editor/chrome/RovingFocus.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <algorithm>

namespace tembra {

RovingFocus::RovingFocus(QObject *row) : QObject(row) {}

void RovingFocus::add(QAbstractButton *button) {
    button->setFocusPolicy(m_buttons.empty() ? Qt::TabFocus : Qt::NoFocus);
    button->installEventFilter(this);
    m_buttons.push_back(button);
}

void RovingFocus::setEntrance(QAbstractButton *button) {
    for (QAbstractButton *other : m_buttons)
        other->setFocusPolicy(other == button ? Qt::TabFocus : Qt::NoFocus);
}

bool RovingFocus::eventFilter(QObject *watched, QEvent *event) {
    auto *button = static_cast<QAbstractButton *>(watched);
    if (event->type() == QEvent::FocusIn)
        setEntrance(button);
    return event->type() == QEvent::KeyPress && move(*button, static_cast<QKeyEvent *>(event)->key());
}

bool RovingFocus::move(const QAbstractButton &from, int key) {
    const auto last = static_cast<std::ptrdiff_t>(m_buttons.size()) - 1;
    const auto here = std::ranges::find(m_buttons, &from) - m_buttons.begin();
    const std::ptrdiff_t ahead = from.layoutDirection() == Qt::RightToLeft ? -1 : 1;
    std::ptrdiff_t target = here;
    switch (key) {
    case Qt::Key_Left:
        target -= ahead;
        break;
    case Qt::Key_Right:
        target += ahead;
        break;
    case Qt::Key_Up:
        --target;
        break;
    case Qt::Key_Down:
        ++target;
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = last;
        break;
    default:
        return false;
    }
    m_buttons[static_cast<size_t>(std::clamp<std::ptrdiff_t>(target, 0, last))]->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace tembra
