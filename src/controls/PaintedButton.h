#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>

namespace tembra {

struct Theme;

// What the controls that paint themselves as buttons have in common: they follow the pointer and the
// keyboard, leave room for the keyboard's ring around their body, and look disabled alike.
class PaintedButton : public QAbstractButton {
    Q_OBJECT

public:
    // Of the body and the room around it.
    [[nodiscard]] QSize sizeHint() const final;

protected:
    explicit PaintedButton(QWidget *parent);

    // The outline that the keyboard's ring follows; in the widget's coordinates.
    struct Outline {
        QRectF body;
        qreal radius;
    };

    [[nodiscard]] virtual QSize bodySize() const = 0;
    virtual Outline paint(QPainter &painter, const Theme &theme) = 0;

    [[nodiscard]] bool isHovered() const { return isEnabled() && underMouse(); }
    // Whether the key was Return or Enter, which then clicked.
    bool clickWithReturn(const QKeyEvent &event);

private:
    void paintEvent(QPaintEvent *event) final;

    KeyboardFocus m_keyboardFocus{*this};
};

} // namespace tembra
