#pragma once

#include <QSize>

namespace tembra {

// What the panel is to look like: nothing, a notification, or the open shelf. Sizes in points.
struct ShelfPresentation {
    enum class Kind { collapsed, notification, expanded };

    Kind kind = Kind::collapsed;
    QSize size;

    [[nodiscard]] static ShelfPresentation collapsed() { return {}; }
    [[nodiscard]] static ShelfPresentation notification(QSize size) { return {Kind::notification, size}; }
    [[nodiscard]] static ShelfPresentation expanded(QSize size) { return {Kind::expanded, size}; }

    bool operator==(const ShelfPresentation &) const = default;
};

} // namespace tembra
