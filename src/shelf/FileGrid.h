#pragma once

#include "shelf/FileGridState.h"

#include <QImage>
#include <QPoint>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

namespace tembra {

class FileCollectionView;
class ScreenshotScrollView;

// Files as a scrolling grid of tiles, in one run or under the titles of their sections. What happens to files
// is decided by who listens to its signals.
class FileGrid : public QWidget {
    Q_OBJECT

public:
    // Takes over the view.
    FileGrid(std::unique_ptr<FileCollectionView> view, QWidget *parent);

    // Shows the state. The selection and the place in the document stay; an unchanged state does nothing.
    void render(FileGridState state);

    [[nodiscard]] std::vector<FileTile> selectedTiles() const;
    [[nodiscard]] const QSet<FileTileID> &selection() const;
    // Of the selected files in display order.
    [[nodiscard]] QStringList selectedPaths() const;
    // Of the selected files that can be seen, in display order.
    [[nodiscard]] QList<QImage> selectedPictures() const;
    void selectAll();
    void clearSelection();
    void select(const QSet<FileTileID> &ids);
    // Scrolls to where the keyboard is, else to the first selected file.
    void revealSelection();
    void scrollToTop();
    // Gives the grid the keyboard.
    void takeFocus();

    [[nodiscard]] ScreenshotScrollView &scrollView() { return *m_scrollView; }
    [[nodiscard]] FileCollectionView &collectionView() { return *m_collectionView; }

Q_SIGNALS:
    void selectionChanged();
    void activated(const tembra::FileTile &tile);
    void contextMenuRequested(const tembra::FileTile &tile, QPoint globalPosition);
    void backgroundMenuRequested(QPoint globalPosition);
    void dragRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectViews();
    void layoutDocument();
    void updateVisibleSpan();

    ScreenshotScrollView *m_scrollView;
    FileCollectionView *m_collectionView;
};

} // namespace tembra
