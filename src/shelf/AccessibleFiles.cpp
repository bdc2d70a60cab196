#include "shelf/AccessibleFiles.h"

#include "shelf/AccessibleFile.h"

#include <algorithm>

namespace tembra {

AccessibleFiles::AccessibleFiles(FileCollectionView &view)
    : QAccessibleWidget(&view, QAccessible::List), m_view(view) {}

AccessibleFiles::~AccessibleFiles() {
    for (const QAccessible::Id id : std::as_const(m_files))
        QAccessible::deleteAccessibleInterface(id);
}

AccessibleFiles *AccessibleFiles::of(FileCollectionView &view) {
    return QAccessible::isActive()
               ? dynamic_cast<AccessibleFiles *>(QAccessible::queryAccessibleInterface(&view))
               : nullptr;
}

void AccessibleFiles::filesChanged() {
    QSet<FileTileID> shown;
    for (int index = 0; index < fileCount(); ++index)
        shown.insert(m_view.state().at(index).id);
    const QSet<FileTileID> before = std::exchange(m_told, shown);
    // Nobody has asked for any of them.
    if (m_files.isEmpty())
        return;
    const QSet<FileTileID> added = shown - before;
    constexpr int mostAtOnce = 20;
    if (added.size() > mostAtOnce) {
        QAccessibleEvent reordered(&m_view, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&reordered);
    } else {
        for (const FileTileID &id : added) {
            QAccessibleEvent created(file(id), QAccessible::ObjectCreated);
            QAccessible::updateAccessibility(&created);
        }
    }
    m_files.removeIf([&shown](const auto &known) {
        if (shown.contains(known.key()))
            return false;
        QAccessibleEvent destroyed(QAccessible::accessibleInterface(known.value()),
                                   QAccessible::ObjectDestroyed);
        QAccessible::updateAccessibility(&destroyed);
        QAccessible::deleteAccessibleInterface(known.value());
        return true;
    });
}

void AccessibleFiles::tellCurrent(int index) {
    QAccessibleInterface *current = child(index);
    for (const QAccessible::Event what : {QAccessible::Focus, QAccessible::Selection}) {
        if (what == QAccessible::Focus && !m_view.hasFocus())
            continue;
        QAccessibleEvent event(current, what);
        QAccessible::updateAccessibility(&event);
    }
}

std::vector<QWidget *> AccessibleFiles::titles() const {
    std::vector<QWidget *> titles;
    for (auto *title : m_view.findChildren<ScreenshotSectionHeader *>()) {
        if (!title->isHidden())
            titles.push_back(title);
    }
    return titles;
}

QAccessibleInterface *AccessibleFiles::file(const FileTileID &id) const {
    const auto known = m_files.constFind(id);
    if (known != m_files.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto *made = new AccessibleFile(m_view, id);
    m_files.insert(id, QAccessible::registerAccessibleInterface(made));
    return made;
}

int AccessibleFiles::childCount() const {
    return fileCount() + static_cast<int>(titles().size());
}

QAccessibleInterface *AccessibleFiles::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    if (index < fileCount())
        return file(m_view.state().at(index).id);
    return QAccessible::queryAccessibleInterface(titles()[static_cast<std::size_t>(index - fileCount())]);
}

int AccessibleFiles::indexOfChild(const QAccessibleInterface *child) const {
    if (const auto *const one = dynamic_cast<const AccessibleFile *>(child))
        return m_files.contains(one->id()) ? one->index().value_or(-1) : -1;
    const std::vector<QWidget *> all = titles();
    const auto title = std::ranges::find(all, child ? child->object() : nullptr);
    return title == all.end() ? -1 : fileCount() + static_cast<int>(title - all.begin());
}

QAccessibleInterface *AccessibleFiles::childAt(int x, int y) const {
    const auto index = m_view.gridLayout().itemAt(m_view.mapFromGlobal(QPoint(x, y)));
    return index ? child(*index) : nullptr;
}

QAccessibleInterface *AccessibleFiles::focusChild() const {
    const auto current = m_view.hasFocus() ? m_view.currentIndex() : std::nullopt;
    return current ? child(*current) : QAccessibleWidget::focusChild();
}

} // namespace tembra
