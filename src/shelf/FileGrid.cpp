#include "shelf/FileGrid.h"

#include "shelf/FileCollectionView.h"
#include "shelf/FileItemCell.h"
#include "shelf/ScreenshotScrollView.h"

#include <QScrollBar>

#include <utility>

namespace tembra {

FileGrid::FileGrid(std::unique_ptr<FileCollectionView> view, QWidget *parent)
    : QWidget(parent), m_scrollView(new ScreenshotScrollView(this)), m_collectionView(view.release()) {
    m_scrollView->setWidget(m_collectionView);
    m_collectionView->setAutoFillBackground(false);
    setFocusProxy(m_collectionView);
    connectViews();
}

void FileGrid::connectViews() {
    connect(m_scrollView, &ScreenshotScrollView::viewportResized, this, &FileGrid::layoutDocument);
    connect(m_scrollView->verticalScrollBar(), &QScrollBar::valueChanged, this, &FileGrid::updateVisibleSpan);
    const auto *view = m_collectionView;
    connect(view, &FileCollectionView::selectionChanged, this, &FileGrid::selectionChanged);
    connect(view, &FileCollectionView::activated, this, &FileGrid::activated);
    connect(view, &FileCollectionView::contextMenuRequested, this, &FileGrid::contextMenuRequested);
    connect(view, &FileCollectionView::backgroundMenuRequested, this, &FileGrid::backgroundMenuRequested);
    connect(view, &FileCollectionView::dragRequested, this, &FileGrid::dragRequested);
    connect(view, &FileCollectionView::revealRequested, m_scrollView, &ScreenshotScrollView::reveal);
}

void FileGrid::render(FileGridState state) {
    m_collectionView->apply(std::move(state));
    updateVisibleSpan();
}

void FileGrid::layoutDocument() {
    m_collectionView->fit(m_scrollView->viewport()->size());
    updateVisibleSpan();
}

void FileGrid::updateVisibleSpan() {
    const int top = m_scrollView->verticalScrollBar()->value();
    m_collectionView->setVisibleSpan(top, top + m_scrollView->viewport()->height());
}

std::vector<FileTile> FileGrid::selectedTiles() const {
    return m_collectionView->selectedTiles();
}

const QSet<FileTileID> &FileGrid::selection() const {
    return m_collectionView->selection();
}

QStringList FileGrid::selectedPaths() const {
    QStringList paths;
    for (const FileTile &tile : selectedTiles())
        paths += tile.path;
    return paths;
}

QList<QImage> FileGrid::selectedPictures() const {
    QList<QImage> pictures;
    for (const auto &[index, cell] : m_collectionView->cells().shown()) {
        if (cell->isSelected() && !cell->image().isNull())
            pictures.append(cell->image());
    }
    return pictures;
}

void FileGrid::selectAll() {
    m_collectionView->selectAll();
}

void FileGrid::clearSelection() {
    m_collectionView->clearSelection();
}

void FileGrid::select(const QSet<FileTileID> &ids) {
    m_collectionView->select(ids);
}

void FileGrid::revealSelection() {
    if (const auto index = m_collectionView->currentIndex())
        m_scrollView->reveal(m_collectionView->gridLayout().itemRectWithTitle(*index));
}

void FileGrid::scrollToTop() {
    m_scrollView->verticalScrollBar()->setValue(0);
}

void FileGrid::takeFocus() {
    m_collectionView->setFocus(Qt::OtherFocusReason);
}

void FileGrid::resizeEvent(QResizeEvent *) {
    m_scrollView->setGeometry(rect());
}

} // namespace tembra
