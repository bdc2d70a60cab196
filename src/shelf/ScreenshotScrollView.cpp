#include "shelf/ScreenshotScrollView.h"

#include "controls/ShelfScroller.h"
#include "shelf/EdgeFades.h"
#include "shelf/ShelfLayout.h"

#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace tembra {

ScreenshotScrollView::ScreenshotScrollView(QWidget *parent)
    : QScrollArea(parent),
      m_fades(new EdgeFades(this)),
      m_scroller(new ShelfScroller(*verticalScrollBar(), this)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    m_scroller->resize(scrollerSize);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ScreenshotScrollView::updateFades);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ScreenshotScrollView::updateFades);
}

void ScreenshotScrollView::reveal(const QRect &rectangle) {
    QScrollBar &bar = *verticalScrollBar();
    const int height = viewport()->height();
    const int lowest = rectangle.top() - ShelfLayout::Grid::sectionInset.top();
    const int highest = rectangle.bottom() + 1 + ShelfLayout::Grid::sectionInset.bottom() - height;
    const int value = bar.value();
    bar.setValue(std::min(std::max(value, highest), lowest));
    if (bar.value() != value)
        m_scroller->flash();
}

void ScreenshotScrollView::updateFades() {
    const QScrollBar &bar = *verticalScrollBar();
    const auto strength = [](int hidden, int reach) { return std::clamp(hidden / qreal(reach), 0.0, 1.0); };
    m_fades->setOpacities(strength(bar.value() - bar.minimum(), EdgeFades::topHeight),
                          strength(bar.maximum() - bar.value(), EdgeFades::bottomHeight));
}

void ScreenshotScrollView::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    m_fades->setGeometry(rect());
    const QRect room = rect().marginsRemoved(scrollerInsets);
    m_scroller->setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignTop,
                                                {scrollerSize.width(), room.height()}, room));
    m_fades->raise();
    m_scroller->raise();
    Q_EMIT viewportResized();
    updateFades();
}

void ScreenshotScrollView::enterEvent(QEnterEvent *event) {
    m_scroller->setAreaActive(true);
    QScrollArea::enterEvent(event);
}

void ScreenshotScrollView::leaveEvent(QEvent *event) {
    m_scroller->setAreaActive(false);
    QScrollArea::leaveEvent(event);
}

} // namespace tembra
