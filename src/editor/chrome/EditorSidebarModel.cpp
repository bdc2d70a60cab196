#include "editor/chrome/EditorSidebarModel.h"

#include <algorithm>

namespace tembra {

EditorSidebarModel::EditorSidebarModel(Thumbnails &thumbnails, QObject *parent)
    : QAbstractListModel(parent), m_thumbnails(thumbnails) {
    m_thumbnails.onChanged = [this](const QString &path) {
        if (const int row = rowOf(path); row >= 0)
            Q_EMIT dataChanged(index(row), index(row), {imageRole});
    };
}

void EditorSidebarModel::setItems(std::vector<EditorSidebarItem> items) {
    const bool isSameList =
        std::ranges::equal(items, m_items, {}, &EditorSidebarItem::path, &EditorSidebarItem::path);
    if (!isSameList) {
        beginResetModel();
        m_items = std::move(items);
        endResetModel();
        return;
    }
    for (size_t position = 0; position < items.size(); ++position) {
        if (items[position] == m_items[position])
            continue;
        m_items[position] = std::move(items[position]);
        const QModelIndex changed = index(static_cast<int>(position));
        Q_EMIT dataChanged(changed, changed);
    }
}

int EditorSidebarModel::rowOf(const QString &path) const {
    const auto found = std::ranges::find(m_items, path, &EditorSidebarItem::path);
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

void EditorSidebarModel::setRowsInView(int first, int count, double scale) {
    const size_t from = std::min(static_cast<size_t>(std::max(0, first)), m_items.size());
    const size_t number = std::min(static_cast<size_t>(std::max(0, count)), m_items.size() - from);
    m_thumbnails.want(std::span(m_items).subspan(from, number), scale);
}

int EditorSidebarModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant EditorSidebarModel::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const EditorSidebarItem &item = m_items[static_cast<size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return item.name;
    case Qt::AccessibleDescriptionRole:
        return item.isUnsaved ? tr("Edited, not saved") : item.isEdited ? tr("Edited") : QString();
    case pathRole:
        return item.path;
    case imageRole:
        return m_thumbnails.image(item.path);
    case isEditedRole:
        return item.isEdited;
    case isUnsavedRole:
        return item.isUnsaved;
    default:
        return {};
    }
}

} // namespace tembra
