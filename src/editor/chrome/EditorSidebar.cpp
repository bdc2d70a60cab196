#include "editor/chrome/EditorSidebar.h"

#include "controls/ShelfScroller.h"
#include "controls/TembraToolTip.h"
#include "controls/Theme.h"
#include "editor/chrome/EditorSidebarDelegate.h"
#include "editor/chrome/EditorSidebarModel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace tembra {

namespace {

constexpr int scrollerWidth = 10;

} // namespace

EditorSidebar::EditorSidebar(Thumbnails &thumbnails, QWidget *parent)
    : QListView(parent),
      m_items(new EditorSidebarModel(thumbnails, this)),
      m_delegate(new EditorSidebarDelegate(this)),
      m_scroller(new ShelfScroller(*verticalScrollBar(), this)) {
    setAccessibleName(tr("Screenshots"));
    setFixedWidth(barWidth);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
    setItemDelegate(m_delegate);
    setModel(m_items);
    connect(m_items, &QAbstractItemModel::dataChanged, this, &EditorSidebar::requestPictures);
    // A click leaves the keyboard to what is being drawn.
    setFocusPolicy(Qt::TabFocus);
}

void EditorSidebar::apply(std::vector<EditorSidebarItem> items) {
    const int offset = verticalScrollBar()->value();
    {
        const QScopedValueRollback showing(m_isShowingCurrent, true);
        m_items->setItems(std::move(items));
        const int row = m_items->rowOf(m_current);
        setCurrentIndex(row < 0 ? QModelIndex() : m_items->index(row));
    }
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(offset);
    requestPictures();
}

void EditorSidebar::setCurrent(const QString &path) {
    m_current = path;
    const QScopedValueRollback showing(m_isShowingCurrent, true);
    const int row = m_items->rowOf(path);
    if (row < 0)
        return selectionModel()->clear();
    setCurrentIndex(m_items->index(row));
}

void EditorSidebar::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QListView::keyPressEvent(event);
        return event->accept();
    default:
        event->ignore();
    }
}

void EditorSidebar::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QListView::currentChanged(current, previous);
    if (m_isShowingCurrent || !current.isValid())
        return;
    m_current = current.data(EditorSidebarModel::pathRole).toString();
    Q_EMIT chosen(m_current);
}

// Assistive programs select.
void EditorSidebar::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_isShowingCurrent || selected.isEmpty())
        return;
    // By anybody else it becomes current by itself, a moment later.
    const auto follow = [this, index = QPersistentModelIndex(selected.indexes().constFirst())] {
        if (index.isValid() && index != currentIndex())
            setCurrentIndex(index);
    };
    QMetaObject::invokeMethod(this, follow, Qt::QueuedConnection);
}

void EditorSidebar::requestPictures() {
    if (!isVisible())
        return m_items->setRowsInView(0, 0, devicePixelRatioF());
    const int top = verticalScrollBar()->value() - EditorSidebarDelegate::endMargin;
    const int first = std::max(0, top / EditorSidebarDelegate::pitch);
    const int last = (top + viewport()->height()) / EditorSidebarDelegate::pitch;
    m_items->setRowsInView(first, last - first + 1, devicePixelRatioF());
}

void EditorSidebar::updateGeometries() {
    QListView::updateGeometries();
    verticalScrollBar()->setSingleStep(EditorSidebarDelegate::pitch / 3);
    requestPictures();
}

void EditorSidebar::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    m_scroller->flash();
    requestPictures();
}

void EditorSidebar::paintEvent(QPaintEvent *event) {
    {
        QPainter painter(viewport());
        const Theme &theme = Theme::of(*this);
        painter.fillRect(viewport()->rect(), theme.sidebar);
        const int edge = layoutDirection() == Qt::RightToLeft ? 0 : viewport()->width() - 1;
        painter.fillRect(QRect(edge, 0, 1, viewport()->height()), theme.edge);
    }
    m_delegate->setFocusShown(m_keyboardFocus.isShown());
    QListView::paintEvent(event);
}

void EditorSidebar::resizeEvent(QResizeEvent *event) {
    QListView::resizeEvent(event);
    m_scroller->setGeometry(width() - scrollerWidth - 2, 4, scrollerWidth, height() - 8);
    m_scroller->raise();
    requestPictures();
}

void EditorSidebar::showEvent(QShowEvent *event) {
    QListView::showEvent(event);
    requestPictures();
}

void EditorSidebar::hideEvent(QHideEvent *event) {
    QListView::hideEvent(event);
    requestPictures();
}

// A press that slides over other tiles chooses none of them.
void EditorSidebar::mouseMoveEvent(QMouseEvent *event) {
    if (event->buttons() != Qt::NoButton)
        return;
    QListView::mouseMoveEvent(event);
    TembraToolTip::set(*viewport(), indexAt(event->pos()).data().toString());
}

void EditorSidebar::enterEvent(QEnterEvent *event) {
    QListView::enterEvent(event);
    m_scroller->setAreaActive(true);
}

void EditorSidebar::leaveEvent(QEvent *event) {
    QListView::leaveEvent(event);
    m_scroller->setAreaActive(false);
}

} // namespace tembra
