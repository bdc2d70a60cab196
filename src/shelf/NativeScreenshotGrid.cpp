#include "shelf/NativeScreenshotGrid.h"

#include "shelf/NativeScreenshotCell.h"
#include "shelf/ScreenshotCollectionView.h"
#include "shelf/ScreenshotScrollView.h"

#include <QScrollBar>

#include <utility>

namespace tembra {

NativeScreenshotGrid::NativeScreenshotGrid(const FilePresentation &presentation, QWidget *parent)
    : QWidget(parent),
      m_scrollView(new ScreenshotScrollView(this)),
      m_collectionView(new ScreenshotCollectionView(presentation)) {
    m_scrollView->setWidget(m_collectionView);
    m_collectionView->setAutoFillBackground(false);
    setFocusProxy(m_collectionView);
    connectViews();
}

void NativeScreenshotGrid::connectViews() {
    connect(m_scrollView, &ScreenshotScrollView::viewportResized, this,
            &NativeScreenshotGrid::layoutDocument);
    connect(m_scrollView->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &NativeScreenshotGrid::updateVisibleSpan);
    const auto *view = m_collectionView;
    connect(view, &ScreenshotCollectionView::selectionChanged, this, &NativeScreenshotGrid::selectionChanged);
    connect(view, &ScreenshotCollectionView::activated, this, &NativeScreenshotGrid::activated);
    connect(view, &ScreenshotCollectionView::contextMenuRequested, this,
            &NativeScreenshotGrid::contextMenuRequested);
    connect(view, &ScreenshotCollectionView::backgroundMenuRequested, this,
            &NativeScreenshotGrid::backgroundMenuRequested);
    connect(view, &ScreenshotCollectionView::dragRequested, this, &NativeScreenshotGrid::dragRequested);
    connect(view, &ScreenshotCollectionView::revealRequested, m_scrollView, &ScreenshotScrollView::reveal);
}

void NativeScreenshotGrid::render(ScreenshotGridState state) {
    m_collectionView->apply(std::move(state));
    updateVisibleSpan();
}

void NativeScreenshotGrid::layoutDocument() {
    m_collectionView->fit(m_scrollView->viewport()->size());
    updateVisibleSpan();
}

void NativeScreenshotGrid::updateVisibleSpan() {
    const int top = m_scrollView->verticalScrollBar()->value();
    m_collectionView->setVisibleSpan(top, top + m_scrollView->viewport()->height());
}

std::vector<Shot> NativeScreenshotGrid::selectedShots() const {
    return m_collectionView->selectedShots();
}

QStringList NativeScreenshotGrid::selectedPaths() const {
    QStringList paths;
    for (const Shot &shot : selectedShots())
        paths += shot.location;
    return paths;
}

QList<QImage> NativeScreenshotGrid::selectedPictures() const {
    QList<QImage> pictures;
    for (const auto &[index, cell] : m_collectionView->cells().shown()) {
        if (cell->isSelected() && !cell->image().isNull())
            pictures.append(cell->image());
    }
    return pictures;
}

void NativeScreenshotGrid::selectAll() {
    m_collectionView->selectAll();
}

void NativeScreenshotGrid::clearSelection() {
    m_collectionView->clearSelection();
}

void NativeScreenshotGrid::select(const QSet<ScreenshotFileIdentity> &identities) {
    m_collectionView->select(identities);
}

void NativeScreenshotGrid::revealSelection() {
    if (const auto index = m_collectionView->currentIndex())
        m_scrollView->reveal(m_collectionView->gridLayout().itemRectWithTitle(*index));
}

void NativeScreenshotGrid::scrollToTop() {
    m_scrollView->verticalScrollBar()->setValue(0);
}

void NativeScreenshotGrid::takeFocus() {
    m_collectionView->setFocus(Qt::OtherFocusReason);
}

void NativeScreenshotGrid::resizeEvent(QResizeEvent *) {
    m_scrollView->setGeometry(rect());
}

} // namespace tembra
