#pragma once

#include <QPixmap>
#include <QWidget>

namespace tembra {

// The soft shadow of a widget with round corners that floats over others: lies right below it in the same
// parent, follows it, and lets the pointer through. Owned by that parent; goes with the widget.
class FloatingShadow final : public QWidget {
public:
    // `radius` is that of the owner's corners, `reach` how far the shadow goes.
    FloatingShadow(QWidget &owner, int radius, int reach);

    // The part of the owner that casts it.
    void setBody(const QRect &body);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();
    [[nodiscard]] QPixmap render(qreal scale, qreal strength) const;

    QWidget &m_owner;
    const int m_radius;
    const int m_reach;
    QRect m_body;
};

} // namespace tembra
