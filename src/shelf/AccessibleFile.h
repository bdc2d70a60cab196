#pragma once

#include "shelf/FileTile.h"

#include <QAccessible>
#include <QPointer>

#include <optional>

namespace tembra {

class FileCollectionView;

// One file of a grid as assistive programs see it. It is valid as long as the grid shows the file. Owned by
// AccessibleFiles through Qt; main thread.
class AccessibleFile final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleFile(FileCollectionView &view, FileTileID id);

    [[nodiscard]] const FileTileID &id() const { return m_id; }
    // Its place among the files.
    [[nodiscard]] std::optional<int> index() const;

    [[nodiscard]] bool isValid() const override { return index().has_value(); }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override;
    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override;

    // Selecting it alone, opening it, opening its menu, and selecting it besides the others.
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &name) override;
    [[nodiscard]] QString localizedActionName(const QString &name) const override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] QString description(const FileTile &tile) const;

    const QPointer<FileCollectionView> m_view;
    const FileTileID m_id;
    // Where it was last, to be looked at first.
    mutable int m_place = 0;
};

} // namespace tembra
