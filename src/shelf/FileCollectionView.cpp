#include "shelf/FileCollectionView.h"

#include "controls/SpokenNotice.h"
#include "controls/TembraToolTip.h"
#include "shelf/AccessibleFiles.h"
#include "shelf/FileItemCell.h"
#include "shelf/ShelfLayout.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace tembra {

namespace {

FileSelection::Mode selectionMode(Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::ShiftModifier)
        return FileSelection::Mode::extend;
    if (modifiers & Qt::ControlModifier)
        return FileSelection::Mode::toggle;
    return FileSelection::Mode::replace;
}

} // namespace

FileCollectionView::FileCollectionView(const MakeCell &makeCell)
    : m_cells([this, makeCell] { return makeCell(this); }), m_band(new RubberBand(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    TembraToolTip::set(*this, QString());
}

void FileCollectionView::apply(FileGridState state) {
    if (m_state == state)
        return;
    const std::vector<FileTile> before = selectedTiles();
    m_state = std::move(state);
    const bool selectionShrank = m_selection.retain(m_state);
    tellPins(before);
    m_hovered.reset();
    m_press.reset();
    m_band->end();
    layOut(true);
    changed(selectionShrank);
    if (auto *told = AccessibleFiles::of(*this))
        told->filesChanged();
}

// What became of the selected files.
void FileCollectionView::tellPins(const std::vector<FileTile> &before) {
    const std::vector<FileTile> now = selectedTiles();
    const auto pinned = [](const std::vector<FileTile> &tiles) {
        return std::ranges::count_if(tiles, [](const FileTile &tile) { return tile.isPinned; });
    };
    if (now.size() == before.size() && pinned(now) != pinned(before))
        SpokenNotice::say(*this, pinned(now) > pinned(before) ? tr("Pinned") : tr("Unpinned"));
}

void FileCollectionView::fit(QSize viewport) {
    m_viewport = viewport;
    layOut(false);
}

void FileCollectionView::layOut(bool moves) {
    std::vector<FileGridLayout::Section> sections;
    if (m_state.grouped) {
        for (const FileGridState::Section &section : m_state.sections)
            sections.push_back({static_cast<int>(section.tiles.size()), true});
    } else {
        sections.push_back({m_state.count(), false});
    }
    m_layout = FileGridLayout(m_viewport.width(), sections, m_state.showFileNames, layoutDirection());
    resize(m_viewport.width(), std::max(m_layout.height(), m_viewport.height()));
    arrange(moves);
}

void FileCollectionView::setVisibleSpan(int top, int bottom) {
    if (m_visibleTop == top && m_visibleBottom == bottom)
        return;
    m_visibleTop = top;
    m_visibleBottom = bottom;
    setHovered(std::nullopt);
    arrange();
}

void FileCollectionView::arrange(bool moves) {
    m_cells.arrange(m_state, m_layout, m_layout.itemsWithin(m_visibleTop, m_visibleBottom), moves);
    arrangeHeaders();
    updateAppearance();
}

void FileCollectionView::arrangeHeaders() {
    const std::size_t count = m_state.grouped ? m_state.sections.size() : 0;
    while (m_headers.size() < count)
        m_headers.push_back(new ScreenshotSectionHeader(this));
    for (std::size_t i = 0; i < m_headers.size(); ++i) {
        const QRect place = i < count ? m_layout.headerRect(static_cast<int>(i)) : QRect();
        if (!place.isEmpty()) {
            m_headers[i]->setTitle(m_state.sections[i].title);
            m_headers[i]->setGeometry(place);
        }
        m_headers[i]->setVisible(!place.isEmpty());
    }
}

void FileCollectionView::updateAppearance() {
    const bool showsCurrent = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    for (const auto &[index, cell] : m_cells.shown()) {
        const FileTile &tile = m_state.at(index);
        cell->setSelected(m_selection.contains(tile));
        // The only one that is selected needs no other mark.
        const bool isMarked = m_selection.contains(tile) && m_selection.ids().size() == 1;
        cell->setCurrent(showsCurrent && m_selection.isCurrent(tile) && !isMarked);
        cell->setHighlighted(m_hovered == index);
    }
}

void FileCollectionView::changed(bool didChange) {
    updateAppearance();
    if (didChange)
        Q_EMIT selectionChanged();
}

void FileCollectionView::selectAll() {
    changed(m_selection.selectAll(m_state));
    SpokenNotice::say(*this, tr("%n selected", nullptr, static_cast<int>(m_selection.ids().size())));
}

void FileCollectionView::clearSelection() {
    changed(m_selection.clear());
}

void FileCollectionView::select(const QSet<FileTileID> &ids) {
    changed(m_selection.select(ids));
}

void FileCollectionView::choose(int index, FileSelection::Mode mode) {
    changed(m_selection.choose(m_state, index, mode));
    tellCurrent();
}

void FileCollectionView::tellCurrent() {
    auto *told = AccessibleFiles::of(*this);
    const auto current = told ? currentIndex() : std::nullopt;
    if (current)
        told->tellCurrent(*current);
}

void FileCollectionView::chooseFile(int index) {
    setFocus(Qt::OtherFocusReason);
    moveTo(index, false);
}

void FileCollectionView::toggleFile(int index) {
    choose(index, FileSelection::Mode::toggle);
}

void FileCollectionView::openFile(int index) {
    chooseFile(index);
    const FileTile tile = m_state.at(index);
    Q_EMIT activated(tile);
}

void FileCollectionView::showMenuOf(int index) {
    const FileTile tile = m_state.at(index);
    if (!m_selection.contains(tile))
        chooseFile(index);
    Q_EMIT contextMenuRequested(tile, mapToGlobal(m_layout.itemRect(index).center()));
}

void FileCollectionView::setHovered(std::optional<int> index) {
    if (m_hovered == index)
        return;
    m_hovered = index;
    const auto cell = index ? m_cells.shown().find(*index) : m_cells.shown().end();
    TembraToolTip::set(*this, cell == m_cells.shown().end() ? QString() : cell->second->toolTip());
    updateAppearance();
}

std::optional<int> FileCollectionView::currentIndex() const {
    if (const auto current = m_selection.current(m_state))
        return current;
    for (int index = 0; !m_selection.isEmpty() && index < m_layout.count(); ++index) {
        if (m_selection.contains(m_state.at(index)))
            return index;
    }
    return std::nullopt;
}

void FileCollectionView::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint position = event->position().toPoint();
    const auto index = m_layout.itemAt(position);
    const auto mode = selectionMode(event->modifiers());
    m_press.reset();
    if (!index) {
        if (mode == FileSelection::Mode::replace)
            clearSelection();
        m_band->begin(position, m_selection.ids());
        return;
    }
    m_press = Press{position, std::nullopt};
    // Pressing one of several selected files may begin a drag of all of them.
    if (mode == FileSelection::Mode::replace && m_selection.contains(m_state.at(*index)))
        m_press->narrowsTo = index;
    else
        choose(*index, mode);
}

void FileCollectionView::mouseMoveEvent(QMouseEvent *event) {
    const QPoint position = event->position().toPoint();
    if (event->buttons() == Qt::NoButton)
        setHovered(m_layout.itemAt(position));
    if (m_band->isActive() && (event->buttons() & Qt::LeftButton))
        return stretchBand(position);
    const bool drags = m_press && (event->buttons() & Qt::LeftButton) &&
                       (position - m_press->position).manhattanLength() >= QApplication::startDragDistance();
    if (!drags)
        return;
    m_press.reset();
    if (!m_selection.isEmpty())
        Q_EMIT dragRequested();
}

void FileCollectionView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        m_band->end();
    if (event->button() != Qt::LeftButton || !m_press)
        return;
    const auto press = std::exchange(m_press, std::nullopt);
    if (press->narrowsTo)
        choose(*press->narrowsTo, FileSelection::Mode::replace);
}

void FileCollectionView::stretchBand(QPoint position) {
    m_band->stretchTo(position);
    QSet<FileTileID> selected = m_band->base();
    const QRect area = m_band->geometry();
    const auto range = m_layout.itemsWithin(area.top(), area.bottom());
    for (int index = range.first; index < range.last; ++index) {
        if (m_layout.itemRect(index).intersects(area))
            selected.insert(m_state.at(index).id);
    }
    select(selected);
    // Drawn beyond the edge it takes the document along.
    Q_EMIT revealRequested(QRect(position, QSize(1, 1)));
}

void FileCollectionView::mouseDoubleClickEvent(QMouseEvent *event) {
    const auto index = m_layout.itemAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index ||
        selectionMode(event->modifiers()) != FileSelection::Mode::replace) {
        mousePressEvent(event);
        return;
    }
    m_press.reset();
    choose(*index, FileSelection::Mode::replace);
    const FileTile tile = m_state.at(*index);
    Q_EMIT activated(tile);
}

void FileCollectionView::leaveEvent(QEvent *) {
    setHovered(std::nullopt);
}

void FileCollectionView::contextMenuEvent(QContextMenuEvent *event) {
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const auto chosen = m_selection.isEmpty() ? std::nullopt : currentIndex();
    const auto index = byKeyboard ? chosen : m_layout.itemAt(event->pos());
    event->accept();
    if (!index) {
        Q_EMIT backgroundMenuRequested(event->globalPos());
        return;
    }
    if (byKeyboard)
        return showMenuOf(*index);
    const FileTile tile = m_state.at(*index);
    if (!m_selection.contains(tile))
        choose(*index, FileSelection::Mode::replace);
    Q_EMIT contextMenuRequested(tile, event->globalPos());
}

int FileCollectionView::indexAfterPage(int index, int rows) const {
    using Direction = FileGridLayout::Direction;
    for (int row = 0; row < std::abs(rows); ++row)
        index = m_layout.neighbour(index, rows < 0 ? Direction::up : Direction::down);
    return index;
}

std::optional<int> FileCollectionView::target(const QKeyEvent &event) const {
    using Direction = FileGridLayout::Direction;
    const auto current = currentIndex();
    const int from = current.value_or(0);
    using Grid = ShelfLayout::Grid;
    const int pitch = Grid::heightOfItem(m_state.showFileNames) + Grid::lineSpacing;
    const int page = std::max(1, m_viewport.height() / pitch);
    const auto step = [&](Direction direction) {
        return current ? m_layout.neighbour(from, direction) : from;
    };
    switch (event.key()) {
    case Qt::Key_Left:
        return step(Direction::left);
    case Qt::Key_Right:
        return step(Direction::right);
    case Qt::Key_Up:
        return step(Direction::up);
    case Qt::Key_Down:
        return step(Direction::down);
    case Qt::Key_PageUp:
        return indexAfterPage(from, -page);
    case Qt::Key_PageDown:
        return indexAfterPage(from, page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return m_layout.count() - 1;
    default:
        return std::nullopt;
    }
}

bool FileCollectionView::searchFor(const QKeyEvent &event) {
    const QString text = event.text();
    if (text.isEmpty() || !text.front().isPrint() || text == u" ")
        return false;
    const QString &wanted = m_typeAhead.append(text, std::chrono::milliseconds(event.timestamp()));
    const auto found =
        TypeAhead::find(wanted, m_layout.count(), currentIndex().value_or(0),
                        [this](int index) { return QFileInfo(m_state.at(index).path).fileName(); });
    if (found)
        moveTo(*found, false);
    return true;
}

void FileCollectionView::moveTo(int index, bool extending) {
    choose(index, extending ? FileSelection::Mode::extend : FileSelection::Mode::replace);
    Q_EMIT revealRequested(m_layout.itemRectWithTitle(index));
}

// With Ctrl the keyboard goes on without selecting, and Space selects one more, or one less.
bool FileCollectionView::selectApart(const QKeyEvent &event) {
    const auto current = event.key() == Qt::Key_Space ? currentIndex() : std::nullopt;
    if (current) {
        toggleFile(*current);
        return true;
    }
    const auto index = target(event);
    if (!index)
        return false;
    m_selection.visit(m_state, *index);
    updateAppearance();
    tellCurrent();
    Q_EMIT revealRequested(m_layout.itemRectWithTitle(*index));
    return true;
}

void FileCollectionView::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
        return;
    }
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (m_layout.count() > 0 && modifiers == Qt::ControlModifier && selectApart(*event))
        return;
    if (m_layout.count() == 0 || modifiers != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (const auto index = target(*event)) {
        moveTo(*index, event->modifiers() & Qt::ShiftModifier);
        return;
    }
    if (searchFor(*event))
        return;
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto current = isReturn ? currentIndex() : std::nullopt;
    if (!current) {
        QWidget::keyPressEvent(event);
        return;
    }
    const FileTile tile = m_state.at(*current);
    Q_EMIT activated(tile);
}

void FileCollectionView::focusInEvent(QFocusEvent *) {
    updateAppearance();
    // The list itself is told of first.
    QMetaObject::invokeMethod(
        this, [this] { tellCurrent(); }, Qt::QueuedConnection);
}

void FileCollectionView::focusOutEvent(QFocusEvent *) {
    updateAppearance();
}

} // namespace tembra
