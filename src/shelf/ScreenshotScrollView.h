#pragma once

#include <QScrollArea>

namespace tembra {

class EdgeFades;
class ShelfScroller;

// Scrolls the grid's document under the slim scroller, with fades where there is more.
class ScreenshotScrollView final : public QScrollArea {
    Q_OBJECT

public:
    static constexpr QMargins scrollerInsets{0, 0, 4, 24};
    static constexpr QSize scrollerSize{16, 100};

    explicit ScreenshotScrollView(QWidget *parent = nullptr);

    [[nodiscard]] const EdgeFades &fades() const { return *m_fades; }
    [[nodiscard]] ShelfScroller &scroller() { return *m_scroller; }
    // Scrolls as little as is needed to see the rectangle of the document whole.
    void reveal(const QRect &rectangle);

Q_SIGNALS:
    void viewportResized();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void updateFades();

    EdgeFades *m_fades;
    ShelfScroller *m_scroller;
};

} // namespace tembra
