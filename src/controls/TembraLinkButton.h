#pragma once

#include "controls/PaintedButton.h"

namespace tembra {

// A button that reads as a link.
class TembraLinkButton final : public PaintedButton {
    Q_OBJECT

public:
    explicit TembraLinkButton(const QString &title, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tembra
