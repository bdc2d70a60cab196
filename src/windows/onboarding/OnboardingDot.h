#pragma once

#include "controls/PaintedButton.h"

namespace tembra {

// One step among others: a dot, drawn out while the step is the current one.
class OnboardingDot final : public PaintedButton {
    Q_OBJECT

public:
    explicit OnboardingDot(QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tembra
