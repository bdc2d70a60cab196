#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>
#include <QVariantAnimation>

namespace tembra {

// A switch: on to the right in the accent's colour. Its name is that of the row it stands in.
class TembraToggle final : public QAbstractButton {
    Q_OBJECT

public:
    explicit TembraToggle(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    KeyboardFocus m_keyboardFocus{*this};
    // How far the knob is on its way: 0 is off, 1 is on.
    QVariantAnimation m_position;
};

} // namespace tembra
