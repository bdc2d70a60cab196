#pragma once

#include "editor/chrome/EditorSidebarThumbnails.h"

#include <QAbstractListModel>

#include <vector>

namespace tembra {

// The screenshots of the sidebar, as its list asks for them.
class EditorSidebarModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { pathRole = Qt::UserRole, imageRole, isEditedRole, isUnsavedRole };

    EditorSidebarModel(Thumbnails &thumbnails, QObject *parent);

    // Items that stay where they were are changed in place.
    void setItems(std::vector<EditorSidebarItem> items);
    [[nodiscard]] int rowOf(const QString &path) const;
    // Pictures are needed for these rows and no others.
    void setRowsInView(int first, int count, double scale);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<EditorSidebarItem> m_items;
    EditorSidebarThumbnails m_thumbnails;
};

} // namespace tembra
