#pragma once

#include "controls/Icons.h"
#include "controls/PaintedButton.h"
#include "editor/chrome/WheelSteps.h"

namespace tembra {

// A drawing to press; where it can be checked it lights up. A click does not take the focus.
class EditorIconButton : public PaintedButton {
    Q_OBJECT

public:
    // Of a tool, and of what stands between other controls.
    enum class Size { tool, small };

    EditorIconButton(Icon icon, Size size, const QString &name, QWidget *parent = nullptr);

Q_SIGNALS:
    // The wheel was turned over it.
    void scrolled(int steps);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    const Icon m_icon;
    const Size m_size;
    WheelSteps m_wheel;
};

} // namespace tembra
