#pragma once

#include "shelf/FileCellPool.h"
#include "shelf/FileGridLayout.h"
#include "shelf/FileGridState.h"
#include "shelf/FileSelection.h"
#include "shelf/RubberBand.h"
#include "shelf/ScreenshotSectionHeader.h"
#include "shelf/TypeAhead.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace tembra {

// The document of a grid of files: tiles, perhaps under titles. It is as high as all of them need, but only
// what lies in the visible span exists as widgets.
class FileCollectionView : public QWidget {
    Q_OBJECT

public:
    // Shows the state; an unchanged one costs a comparison.
    void apply(FileGridState state);
    // Lays the document out for a viewport of this size.
    void fit(QSize viewport);
    // The span of the document that can be seen.
    void setVisibleSpan(int top, int bottom);

    // Found by its name from the menu.
    Q_SLOT void selectAll();
    void clearSelection();
    void select(const QSet<FileTileID> &ids);
    [[nodiscard]] std::vector<FileTile> selectedTiles() const { return m_selection.tiles(m_state); }

    [[nodiscard]] const QSet<FileTileID> &selection() const { return m_selection.ids(); }
    [[nodiscard]] const FileGridState &state() const { return m_state; }
    [[nodiscard]] const FileGridLayout &gridLayout() const { return m_layout; }
    [[nodiscard]] const FileCellPool &cells() const { return m_cells; }

    // What keys and the pointer do with the file at a place, for assistive programs.
    void chooseFile(int index);
    void toggleFile(int index);
    void openFile(int index);
    void showMenuOf(int index);

    // Where the keyboard is, else the first selected file.
    [[nodiscard]] std::optional<int> currentIndex() const;

Q_SIGNALS:
    void selectionChanged();
    void activated(const tembra::FileTile &tile);
    void contextMenuRequested(const tembra::FileTile &tile, QPoint globalPosition);
    void backgroundMenuRequested(QPoint globalPosition);
    // The selected files are to be dragged out.
    void dragRequested();
    // The keyboard went to a place that may be out of sight.
    void revealRequested(QRect rectangle);

protected:
    // `makeCell` makes one more cell as a child of the view it is given.
    using MakeCell = std::function<FileItemCell *(QWidget *view)>;
    explicit FileCollectionView(const MakeCell &makeCell);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // With `moves` tiles go to their new places visibly.
    void arrange(bool moves = false);
    void layOut(bool moves);
    void arrangeHeaders();
    void updateAppearance();
    void setHovered(std::optional<int> index);
    void choose(int index, FileSelection::Mode mode);
    void changed(bool didChange);
    // To those who cannot see it.
    void tellCurrent();
    void tellPins(const std::vector<FileTile> &before);
    void moveTo(int index, bool extending);
    [[nodiscard]] std::optional<int> target(const QKeyEvent &event) const;
    void stretchBand(QPoint position);
    // Whether the key, pressed with Ctrl, selects some that do not lie together.
    bool selectApart(const QKeyEvent &event);
    // Whether the key was a letter of a name.
    bool searchFor(const QKeyEvent &event);
    [[nodiscard]] int indexAfterPage(int index, int rows) const;

    FileGridState m_state;
    FileGridLayout m_layout;
    FileSelection m_selection;
    FileCellPool m_cells;
    std::vector<ScreenshotSectionHeader *> m_headers;
    QSize m_viewport;
    int m_visibleTop = 0;
    int m_visibleBottom = 0;
    std::optional<int> m_hovered;

    struct Press {
        QPoint position;
        // The other selected files are given up when the press ends without a drag.
        std::optional<int> narrowsTo;
    };
    std::optional<Press> m_press;
    RubberBand *m_band;
    TypeAhead m_typeAhead;
};

} // namespace tembra
