#pragma once

#include <QScrollBar>
#include <QVariantAnimation>

namespace tembra {

// A slim bar over the content: a rounded knob of 6 points and no slot. It is a mirror of the scroll area's
// own bar, which stays hidden, and shows itself only while there is something to scroll and the area is in
// use.
class ShelfScroller final : public QScrollBar {
    Q_OBJECT

public:
    static constexpr int knobWidth = 6;

    ShelfScroller(QScrollBar &mirrored, QWidget *parent);

    // The area is in use: the pointer is in it.
    void setAreaActive(bool active);
    // The area was scrolled by other means: the knob is shown for a moment.
    void flash();
    [[nodiscard]] QRectF knobRect() const;
    [[nodiscard]] qreal knobOpacity() const { return m_opacity; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void mirror();
    void updateOpacity();
    [[nodiscard]] qreal knobTravel() const;
    [[nodiscard]] qreal knobLength() const;

    QScrollBar &m_mirrored;
    QVariantAnimation m_fade;
    qreal m_opacity = 0;
    qreal m_target = 0;
    bool m_areaActive = false;
    // Distance from the knob's top to where it is held.
    std::optional<qreal> m_grip;
};

} // namespace tembra
