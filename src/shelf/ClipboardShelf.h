#pragma once

#include "shelf/FilePresentation.h"
#include "shelf/ShelfServices.h"
#include "tray/ClipboardEntry.h"

#include <QPoint>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QLabel;
class QMenu;
class QMimeData;
QT_END_NAMESPACE

namespace tembra {

class ClipboardDropArea;
class ClipboardStore;
class FileGrid;
struct FileTile;

// The file tray: files that are dropped or pasted here and dragged or copied elsewhere later. Shows the
// store, whose owner calls `refresh` after its changes.
class ClipboardShelf final : public QWidget {
    Q_OBJECT

public:
    // The store must outlive this.
    ClipboardShelf(ClipboardStore &store, const ShelfServices &services, const FilePresentation &presentation,
                   QWidget *parent);

    void refresh();
    void setShowsFileNames(bool shows);

    // In tray order.
    [[nodiscard]] std::vector<ClipboardEntry> selectedEntries() const;
    // Paths of the selected files that can be reached.
    [[nodiscard]] QStringList availableSelection() const;

    void copySelected();
    void revealSelected();
    void removeSelected();
    void clear();
    void selectAll();
    // What is on the clipboard.
    void paste();
    void openSelected();
    // Drags the selected files out; returns when the drag has ended.
    void dragSelected();
    // Whether anything of what was dropped was taken.
    bool receiveDrop(const QMimeData &content);
    // The menu of the selected files.
    [[nodiscard]] std::unique_ptr<QMenu> contextMenu();

Q_SIGNALS:
    void selectionChanged();
    void menuRequested(QPoint globalPosition);
    void dragRequested();
    // Files were dropped here.
    void filesDropped();
    // Files were taken out, which can be undone.
    void filesTakenOut();
    void failed(const QString &title, const QString &message);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectGrid();
    void layOut();
    void captureSelection();
    // Notes in the status when some of the selected files cannot be reached.
    QStringList reachableSelection();
    void showDropTarget(bool shows);
    void updateHint();

    ClipboardStore &m_store;
    ShelfServices m_services;
    FileGrid *m_grid;
    ClipboardDropArea *m_dropArea;
    QLabel *m_hint;
    bool m_showsFileNames = true;
    bool m_isDropTarget = false;
    bool m_isRefreshing = false;
};

} // namespace tembra
