#include "controls/DropdownList.h"

#include "controls/ControlPainting.h"
#include "controls/DropdownDelegate.h"
#include "controls/ShelfScroller.h"
#include "controls/Theme.h"
#include "controls/Typography.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace tembra {

namespace {

constexpr int padding = 5;
constexpr int longestList = 12;
constexpr qreal radius = 10;

} // namespace

DropdownList::DropdownList(const QStringList &titles, int current, QWidget *owner)
    : QListView(owner), m_titles(titles), m_chosen(current) {
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName(owner->accessibleName());
    setFont(typography::font(typography::bodySize));
    setFrameShape(QFrame::NoFrame);
    setModel(&m_titles);
    setItemDelegate(new DropdownDelegate(current, this));
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setViewportMargins(padding, padding, padding, padding);
    viewport()->setAutoFillBackground(false);
    setCurrentIndex(m_titles.index(current));
}

void DropdownList::popUp() {
    const auto *owner = parentWidget();
    const int rows = m_titles.rowCount();
    const int width = std::max(sizeHintForColumn(0) + 2 * padding, owner->width() - 2 * ringMargin);
    const int height = std::min(rows, longestList) * DropdownDelegate::rowHeight + 2 * padding;
    const QRect available = owner->screen()->availableGeometry();
    const QRect place = QRect(owner->mapToGlobal(QPoint(0, 0)), owner->size())
                            .marginsRemoved({ringMargin, ringMargin, ringMargin, ringMargin});
    const bool fitsBelow = place.bottom() + padding + height <= available.bottom();
    const int y = fitsBelow ? place.bottom() + padding : place.top() - padding - height;
    const int x = std::clamp(place.right() + 1 - width, available.left(),
                             std::max(available.left(), available.right() + 1 - width));
    setGeometry(x, std::max(available.top(), y), width, height);
    if (rows > longestList) {
        auto *scroller = new ShelfScroller(*verticalScrollBar(), this);
        scroller->setGeometry(width - 12, padding, 10, height - 2 * padding);
        scroller->setAreaActive(true);
    }
    show();
    setFocus(Qt::PopupFocusReason);
    scrollTo(currentIndex(), PositionAtCenter);
}

bool DropdownList::event(QEvent *event) {
    // What lies around and below the viewport; the view's own paint events are those of the viewport.
    if (event->type() == QEvent::Paint) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Theme &theme = Theme::of(*this);
        drawField(painter, rect(), radius, theme.popup, theme.popupBorder);
        return true;
    }
    return QListView::event(event);
}

void DropdownList::choose(const QModelIndex &index) {
    if (index.isValid())
        Q_EMIT chosen(index.row());
    close();
}

void DropdownList::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(currentIndex());
        return;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        close();
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void DropdownList::mouseMoveEvent(QMouseEvent *event) {
    const QModelIndex below = indexAt(event->pos());
    if (below.isValid())
        setCurrentIndex(below);
}

void DropdownList::mousePressEvent(QMouseEvent *event) {
    if (!viewport()->rect().contains(event->pos()))
        close();
}

void DropdownList::mouseReleaseEvent(QMouseEvent *event) {
    const QModelIndex below = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && below.isValid())
        choose(below);
}

void DropdownList::hideEvent(QHideEvent *event) {
    QListView::hideEvent(event);
    Q_EMIT closed();
}

} // namespace tembra
