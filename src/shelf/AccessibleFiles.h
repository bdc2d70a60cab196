#pragma once

#include "shelf/FileCollectionView.h"

#include <QAccessibleWidget>

namespace tembra {

// A grid of files as assistive programs see it: a list of all its files, also of those that are out of sight
// and have no tile, and after them the titles of its sections. Owned by Qt; main thread.
class AccessibleFiles final : public QAccessibleWidget {
public:
    explicit AccessibleFiles(FileCollectionView &view);
    ~AccessibleFiles() override;
    AccessibleFiles(const AccessibleFiles &) = delete;
    AccessibleFiles &operator=(const AccessibleFiles &) = delete;

    // What tells of the view, where an assistive program listens; else nothing.
    [[nodiscard]] static AccessibleFiles *of(FileCollectionView &view);
    // The view shows other files now.
    void filesChanged();
    // The keyboard is at this file, and whether it is selected may have changed.
    void tellCurrent(int index);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    [[nodiscard]] int fileCount() const { return m_view.gridLayout().count(); }
    [[nodiscard]] std::vector<QWidget *> titles() const;
    [[nodiscard]] QAccessibleInterface *file(const FileTileID &id) const;

    FileCollectionView &m_view;
    mutable QHash<FileTileID, QAccessible::Id> m_files;
    // That were there when it was last told of changes.
    QSet<FileTileID> m_told;
};

} // namespace tembra
