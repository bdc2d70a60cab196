#pragma once

#include "shelf/ShelfShadow.h"

#include <QWidget>

#include <functional>

namespace tembra {

// The root of the panel's window: paints the panel's outline with its shadow and tells of the pointer coming
// and going. View points.
class ShelfView final : public QWidget {
    Q_OBJECT

public:
    explicit ShelfView(QWidget *parent);

    std::function<void()> onPointerActivity;

    // `castsShadow` where something composes windows; without that the window is cut to the outline instead.
    void setBody(const QRectF &body, bool castsShadow);
    [[nodiscard]] const QRectF &body() const { return m_body; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QRectF m_body;
    bool m_castsShadow = true;
    ShelfShadow m_shadow;
};

} // namespace tembra
