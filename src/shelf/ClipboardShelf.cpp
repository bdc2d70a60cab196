#include "shelf/ClipboardShelf.h"

#include "controls/Palette.h"
#include "controls/ShelfMenu.h"
#include "controls/SpokenNotice.h"
#include "controls/TextLabel.h"
#include "controls/Typography.h"
#include "shelf/ClipboardCollectionView.h"
#include "shelf/ClipboardDropArea.h"
#include "shelf/FileDrag.h"
#include "shelf/FileGrid.h"
#include "shelf/FileOpening.h"
#include "tray/ClipboardStore.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>

#include <algorithm>
#include <functional>
#include <iterator>

namespace tembra {

namespace {

// The strip below the files with the hint or the status.
constexpr int hintHeight = 42;
constexpr QMargins dropAreaMargins{24, 10, 24, 40};

FileTile tile(const ClipboardEntry &entry) {
    return {.id = entry.id,
            .path = entry.lastKnownPath,
            .revision = QString::number(entry.modifiedAt.time_since_epoch().count()),
            .isAvailable = entry.available,
            .isFolder = entry.isFolder};
}

} // namespace

ClipboardShelf::ClipboardShelf(ClipboardStore &store, const ShelfServices &services,
                               const FilePresentation &presentation, QWidget *parent)
    : QWidget(parent),
      m_store(store),
      m_services(services),
      m_grid(new FileGrid(std::make_unique<ClipboardCollectionView>(presentation), this)),
      m_dropArea(new ClipboardDropArea(this)),
      m_hint(makeTextLabel(this, typography::captionSize, QFont::Normal, palette::secondaryText)) {
    setAcceptDrops(true);
    setFocusProxy(m_grid);
    connectGrid();
    refresh();
}

void ClipboardShelf::connectGrid() {
    connect(m_grid, &FileGrid::selectionChanged, this, &ClipboardShelf::captureSelection);
    connect(m_grid, &FileGrid::dragRequested, this, &ClipboardShelf::dragRequested);
    connect(m_grid, &FileGrid::activated, this, &ClipboardShelf::openSelected);
    connect(m_grid, &FileGrid::contextMenuRequested, this,
            [this](const FileTile &, QPoint position) { Q_EMIT menuRequested(position); });
    connect(m_grid, &FileGrid::backgroundMenuRequested, this, &ClipboardShelf::menuRequested);
}

void ClipboardShelf::setShowsFileNames(bool shows) {
    if (m_showsFileNames == shows)
        return;
    m_showsFileNames = shows;
    refresh();
}

void ClipboardShelf::refresh() {
    FileGridState state{.showFileNames = m_showsFileNames};
    FileGridState::Section &section = state.sections.emplace_back();
    std::ranges::transform(m_store.entries(), std::back_inserter(section.tiles), tile);
    QSet<FileTileID> selection;
    for (const QUuid &id : m_store.selectedIDs())
        selection.insert(id);
    // What the grid tells of while it is brought in step is not the user's doing.
    m_isRefreshing = true;
    m_grid->render(std::move(state));
    m_grid->select(selection);
    m_isRefreshing = false;
    showDropTarget(m_isDropTarget);
    updateHint();
}

void ClipboardShelf::updateHint() {
    const QString hint = m_store.status().value_or(tr("Drag or ⌘C to copy"));
    if (m_store.status() && hint != m_hint->text())
        SpokenNotice::say(*this, hint);
    m_hint->setText(hint);
}

void ClipboardShelf::captureSelection() {
    if (m_isRefreshing)
        return;
    QSet<QUuid> ids;
    for (const FileTileID &id : m_grid->selection())
        ids.insert(std::get<QUuid>(id));
    m_store.select(ids);
    Q_EMIT selectionChanged();
}

std::vector<ClipboardEntry> ClipboardShelf::selectedEntries() const {
    std::vector<ClipboardEntry> selected;
    std::ranges::copy_if(
        m_store.entries(), std::back_inserter(selected),
        [this](const ClipboardEntry &entry) { return m_store.selectedIDs().contains(entry.id); });
    return selected;
}

QStringList ClipboardShelf::availableSelection() const {
    QStringList paths;
    for (const ClipboardEntry &entry : selectedEntries()) {
        if (entry.available)
            paths += entry.lastKnownPath;
    }
    return paths;
}

QStringList ClipboardShelf::reachableSelection() {
    m_store.reconcileFiles();
    const QStringList paths = availableSelection();
    if (paths.size() < m_store.selectedIDs().size())
        m_store.setStatus(tr("Some originals are currently unavailable"));
    return paths;
}

void ClipboardShelf::copySelected() {
    const QStringList paths = reachableSelection();
    if (paths.isEmpty())
        return;
    std::vector<Pasteboard::Item> items;
    for (const QString &path : paths)
        items.push_back({.path = path});
    if (const auto written = m_services.pasteboard.writeObjects(items); !written)
        m_store.setStatus(written.error().message);
}

void ClipboardShelf::revealSelected() {
    revealFiles(m_services.workspace, reachableSelection(), std::bind_front(&ClipboardShelf::failed, this));
}

void ClipboardShelf::openSelected() {
    openFiles(m_services.workspace, reachableSelection(), QString(),
              std::bind_front(&ClipboardShelf::failed, this));
}

void ClipboardShelf::removeSelected() {
    m_store.removeSelected();
    Q_EMIT filesTakenOut();
}

void ClipboardShelf::clear() {
    m_store.clear();
    Q_EMIT filesTakenOut();
}

void ClipboardShelf::selectAll() {
    m_grid->selectAll();
}

void ClipboardShelf::paste() {
    if (const QMimeData *content = m_services.pasteboard.content())
        m_store.receive(*content);
}

void ClipboardShelf::dragSelected() {
    dragFiles(*m_grid, reachableSelection(), m_services.files, m_grid->selectedPictures());
}

std::unique_ptr<QMenu> ClipboardShelf::contextMenu() {
    const auto when = [](bool isEnabled, std::function<void()> action) {
        return isEnabled ? std::move(action) : std::function<void()>();
    };
    const bool hasAvailable = !availableSelection().isEmpty();
    auto menu = std::make_unique<ShelfMenu>();
    menu->add(tr("Copy"), when(hasAvailable, [this] { copySelected(); }));
    menu->add(tr("Show in Finder"), when(hasAvailable, [this] { revealSelected(); }));
    menu->addSeparator();
    menu->add(tr("Remove from File Tray"),
              when(!m_store.selectedIDs().isEmpty(), [this] { removeSelected(); }));
    menu->add(tr("Clear File Tray"), when(!m_store.entries().empty(), [this] { clear(); }));
    return menu;
}

void ClipboardShelf::showDropTarget(bool shows) {
    m_isDropTarget = shows;
    const bool isEmpty = m_store.entries().empty();
    m_dropArea->setOverlay(!isEmpty);
    m_dropArea->setHighlighted(shows);
    m_dropArea->setVisible(isEmpty || shows);
}

void ClipboardShelf::dragEnterEvent(QDragEnterEvent *event) {
    // What was dragged out of the tray is in it already.
    if (event->source() == m_grid)
        return;
    if (!ClipboardStore::canRead(*event->mimeData()))
        return m_store.setStatus(tr("Only files and images can be kept here"));
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_store.setStatus(std::nullopt);
    showDropTarget(true);
}

void ClipboardShelf::dragLeaveEvent(QDragLeaveEvent *) {
    showDropTarget(false);
}

void ClipboardShelf::dropEvent(QDropEvent *event) {
    showDropTarget(false);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(receiveDrop(*event->mimeData()));
}

bool ClipboardShelf::receiveDrop(const QMimeData &content) {
    const bool isTaken = m_store.receive(content);
    if (isTaken)
        Q_EMIT filesDropped();
    return isTaken;
}

void ClipboardShelf::resizeEvent(QResizeEvent *) {
    layOut();
}

void ClipboardShelf::layOut() {
    m_grid->setGeometry(rect().adjusted(0, 0, 0, -hintHeight / 2 - 4));
    m_dropArea->setGeometry(rect().marginsRemoved(dropAreaMargins));
    m_hint->setGeometry(0, height() - hintHeight, width(), hintHeight);
}

} // namespace tembra
