#pragma once

#include "AccessibleTree.h"
#include "TembraProcess.h"

#include <functional>
#include <optional>

namespace tembra {

// Somebody who neither sees nor points: knows of the program what a screen reader is told, by roles and names
// alone, does what is offered there, and types. What is not found within ten seconds fails the test with a
// sentence that says what was missing, and where.
class AccessibleHands {
public:
    using Node = AccessibleTree::Node;

    explicit AccessibleHands(const TembraProcess &tembra) : m_tembra(tembra) {}

    // Whether it comes to be shown; and as wished, where something is wished.
    [[nodiscard]] bool finds(const QString &role, const QString &name,
                             const std::function<bool(const Node &)> &wish = {},
                             const QString &wanted = {}) const;
    [[nodiscard]] bool losesSight(const QString &role, const QString &name) const;
    // Does what is offered: the first thing, or what is called so.
    [[nodiscard]] bool does(const QString &role, const QString &name, const QString &action = {}) const;
    // Gives it the keyboard and presses the keys.
    [[nodiscard]] bool types(const QString &role, const QString &name, const QStringList &keys) const;
    [[nodiscard]] std::optional<Node> node(const QString &role, const QString &name) const;
    // As many as are shown.
    [[nodiscard]] int count(const QString &role) const;
    [[nodiscard]] const AccessibleTree &tree() const { return m_tree; }

private:
    // Those that are shown, for who looks for what was missing.
    [[nodiscard]] QString namesOf(const QString &role) const;

    const TembraProcess &m_tembra;
    const AccessibleTree m_tree;
};

} // namespace tembra
