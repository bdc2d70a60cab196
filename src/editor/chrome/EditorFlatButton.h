#pragma once

#include "controls/PaintedButton.h"
#include "editor/chrome/WheelSteps.h"

namespace tembra {

// A title to press, with no field around it until the pointer comes. A click does not take the focus.
class EditorFlatButton final : public PaintedButton {
    Q_OBJECT

public:
    // With a mark that it opens something.
    enum class Mark { none, opens };

    EditorFlatButton(const QString &title, const QString &name, Mark mark = Mark::none,
                     QWidget *parent = nullptr);

    // The body is as wide as this at least.
    void setLeastWidth(int width);

Q_SIGNALS:
    // The wheel was turned over it, or an arrow key pressed up or down.
    void stepped(int steps);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    const Mark m_mark;
    int m_leastWidth = 0;
    WheelSteps m_wheel;
};

} // namespace tembra
