#pragma once

#include "shelf/FilePresentation.h"
#include "shelf/ScreenshotGridState.h"

#include <QImage>
#include <QPoint>
#include <QStringList>
#include <QWidget>

namespace tembra {

class ScreenshotCollectionView;
class ScreenshotScrollView;

// The screenshots tab: the user's screenshots as a scrolling grid of tiles, in one run or under the titles of
// their sections. What happens to shots is decided by who listens to its signals.
class NativeScreenshotGrid final : public QWidget {
    Q_OBJECT

public:
    explicit NativeScreenshotGrid(const FilePresentation &presentation, QWidget *parent = nullptr);

    // Shows the state. The selection and the place in the document stay; an unchanged state does nothing.
    void render(ScreenshotGridState state);

    [[nodiscard]] std::vector<Shot> selectedShots() const;
    // Locations of the selected shots in display order.
    [[nodiscard]] QStringList selectedPaths() const;
    // Of the selected shots that can be seen, in display order.
    [[nodiscard]] QList<QImage> selectedPictures() const;
    void selectAll();
    void clearSelection();
    void select(const QSet<ScreenshotFileIdentity> &identities);
    // Scrolls to where the keyboard is, else to the first selected shot.
    void revealSelection();
    void scrollToTop();
    // Gives the grid the keyboard.
    void takeFocus();

    [[nodiscard]] ScreenshotScrollView &scrollView() { return *m_scrollView; }
    [[nodiscard]] ScreenshotCollectionView &collectionView() { return *m_collectionView; }

Q_SIGNALS:
    void selectionChanged();
    void activated(const tembra::Shot &shot);
    void contextMenuRequested(const tembra::Shot &shot, QPoint globalPosition);
    void backgroundMenuRequested(QPoint globalPosition);
    void dragRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectViews();
    void layoutDocument();
    void updateVisibleSpan();

    ScreenshotScrollView *m_scrollView;
    ScreenshotCollectionView *m_collectionView;
};

} // namespace tembra
