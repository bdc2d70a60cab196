#include "shelf/AccessibleFile.h"

#include "shelf/FileCollectionView.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tembra {

namespace {

const QString openAction = QStringLiteral("Open");

QString translated(const char *source) {
    return QCoreApplication::translate("AccessibleFile", source);
}

} // namespace

AccessibleFile::AccessibleFile(FileCollectionView &view, FileTileID id)
    : m_view(&view), m_id(std::move(id)) {}

std::optional<int> AccessibleFile::index() const {
    if (!m_view)
        return std::nullopt;
    const FileGridState &state = m_view->state();
    const int count = state.count();
    if (m_place < count && state.at(m_place).id == m_id)
        return m_place;
    for (int place = 0; place < count; ++place) {
        if (state.at(place).id == m_id)
            return m_place = place;
    }
    return std::nullopt;
}

QWindow *AccessibleFile::window() const {
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface *AccessibleFile::parent() const {
    return QAccessible::queryAccessibleInterface(m_view);
}

QString AccessibleFile::description(const FileTile &tile) const {
    QStringList facts;
    if (tile.isPinned)
        facts += translated(QT_TRANSLATE_NOOP("AccessibleFile", "Pinned"));
    if (tile.isEdited)
        facts += translated(QT_TRANSLATE_NOOP("AccessibleFile", "Edited"));
    if (!tile.isAvailable)
        facts += translated(QT_TRANSLATE_NOOP("AccessibleFile", "Original unavailable"));
    if (tile.isFolder)
        facts += translated(QT_TRANSLATE_NOOP("AccessibleFile", "Folder"));
    return facts.join(QStringLiteral(", "));
}

QString AccessibleFile::text(QAccessible::Text kind) const {
    const auto place = index();
    if (!place)
        return {};
    const FileTile &tile = m_view->state().at(*place);
    if (kind == QAccessible::Name)
        return QFileInfo(tile.path).fileName();
    return kind == QAccessible::Description ? description(tile) : QString();
}

QRect AccessibleFile::rect() const {
    const auto place = index();
    if (!place)
        return {};
    const QRect local = m_view->gridLayout().itemRect(*place);
    return {m_view->mapToGlobal(local.topLeft()), local.size()};
}

QAccessible::State AccessibleFile::state() const {
    QAccessible::State state;
    const auto place = index();
    state.invalid = !place;
    if (!place)
        return state;
    state.focusable = true;
    state.focused = m_view->hasFocus() && m_view->currentIndex() == place;
    state.selectable = true;
    state.multiSelectable = true;
    state.selected = m_view->selection().contains(m_id);
    state.invisible = !m_view->isVisible();
    state.offscreen = !m_view->visibleRegion().intersects(m_view->gridLayout().itemRect(*place));
    return state;
}

void *AccessibleFile::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList AccessibleFile::actionNames() const {
    return {pressAction(), openAction, showMenuAction(), toggleAction()};
}

void AccessibleFile::doAction(const QString &name) {
    const auto place = index();
    if (!place)
        return;
    if (name == pressAction() || name == setFocusAction())
        m_view->chooseFile(*place);
    else if (name == toggleAction())
        m_view->toggleFile(*place);
    else if (name == openAction)
        m_view->openFile(*place);
    else if (name == showMenuAction())
        m_view->showMenuOf(*place);
}

QString AccessibleFile::localizedActionName(const QString &name) const {
    return name == openAction ? translated(QT_TRANSLATE_NOOP("AccessibleFile", "Open"))
                              : QAccessibleActionInterface::localizedActionName(name);
}

} // namespace tembra
