#pragma once

#include "editor/chrome/EditorIconButton.h"

#include <QPoint>

#include <optional>

namespace tembra {

// Where the image can be dragged out of the window. A key that would press it copies the image instead:
// without a pointer there is nothing to drag.
class EditorDragHandle final : public EditorIconButton {
    Q_OBJECT

public:
    explicit EditorDragHandle(QWidget *parent = nullptr);

Q_SIGNALS:
    void dragRequested();
    void copyRequested();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    // Where the button went down.
    std::optional<QPoint> m_press;
};

} // namespace tembra
