#pragma once

#include "controls/PaintedButton.h"

namespace tembra {

// A box to tick, with its title beside it.
class TembraCheckbox final : public PaintedButton {
    Q_OBJECT

public:
    explicit TembraCheckbox(const QString &title, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
};

} // namespace tembra
