#pragma once

#include <QWidget>

namespace tembra {

// Lets content run out into the shelf's colour at the top and bottom of a scroll area that it lies over.
class EdgeFades final : public QWidget {
    Q_OBJECT

public:
    static constexpr int topHeight = 24;
    static constexpr int bottomHeight = 44;

    explicit EdgeFades(QWidget *parent);

    // How strong each fade is, from 0 to 1.
    void setOpacities(qreal top, qreal bottom);
    [[nodiscard]] qreal topOpacity() const { return m_top; }
    [[nodiscard]] qreal bottomOpacity() const { return m_bottom; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qreal m_top = 0;
    qreal m_bottom = 0;
};

} // namespace tembra
