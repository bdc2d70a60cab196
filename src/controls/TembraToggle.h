#pragma once

#include "controls/PaintedButton.h"

#include <QVariantAnimation>

namespace tembra {

// A switch: on to the right in the accent's colour. Its name is that of the row it stands in.
class TembraToggle final : public PaintedButton {
    Q_OBJECT

public:
    explicit TembraToggle(QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;

private:
    // How far the knob is on its way: 0 is off, 1 is on.
    QVariantAnimation m_position;
};

} // namespace tembra
