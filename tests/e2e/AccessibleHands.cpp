#include "AccessibleHands.h"

#include <gtest/gtest.h>

namespace tembra {

namespace {

const QString program = QStringLiteral("Tembra");

void complain(const QString &sentence) {
    ADD_FAILURE() << sentence.toStdString();
}

} // namespace

std::optional<AccessibleHands::Node> AccessibleHands::node(const QString &role, const QString &name) const {
    return m_tree.find(program, name, role);
}

int AccessibleHands::count(const QString &role) const {
    int count = 0;
    for (const Node &node : m_tree.shown(program))
        count += node.role == role ? 1 : 0;
    return count;
}

QString AccessibleHands::namesOf(const QString &role) const {
    QStringList names;
    for (const Node &node : m_tree.shown(program)) {
        if (node.role == role)
            names += u'“' + node.name + u'”';
    }
    return names.isEmpty() ? QStringLiteral("none of that role") : names.join(QStringLiteral(", "));
}

bool AccessibleHands::finds(const QString &role, const QString &name,
                            const std::function<bool(const Node &)> &wish, const QString &wanted) const {
    bool isThere = false;
    const bool isFound = m_tembra.waitFor([&](const QJsonObject &) {
        const auto found = node(role, name);
        isThere = found.has_value();
        return isThere && (!wish || wish(*found));
    });
    if (isFound)
        return true;
    if (isThere)
        complain(QStringLiteral("The %1 “%2” is not %3.").arg(role, name, wanted));
    else
        complain(QStringLiteral("No %1 is called “%2”. There is: %3.").arg(role, name, namesOf(role)));
    return false;
}

bool AccessibleHands::losesSight(const QString &role, const QString &name) const {
    const bool isGone = m_tembra.waitFor([&](const QJsonObject &) { return !node(role, name).has_value(); });
    if (!isGone)
        complain(QStringLiteral("The %1 “%2” is still there.").arg(role, name));
    return isGone;
}

bool AccessibleHands::does(const QString &role, const QString &name, const QString &action) const {
    if (!finds(
            role, name, [](const Node &found) { return found.isEnabled; }, QStringLiteral("enabled")))
        return false;
    const auto found = node(role, name);
    if (found && m_tree.act(*found, action))
        return true;
    complain(
        QStringLiteral("The %1 “%2” does not offer “%3” but: %4.")
            .arg(role, name, action, found ? m_tree.actions(*found).join(QStringLiteral(", ")) : QString()));
    return false;
}

bool AccessibleHands::types(const QString &role, const QString &name, const QStringList &keys) const {
    const auto found = node(role, name);
    if (!found || (!found->isFocused && !does(role, name, QStringLiteral("SetFocus"))))
        return false;
    if (!finds(
            role, name, [](const Node &now) { return now.isFocused; }, QStringLiteral("focused")))
        return false;
    m_tembra.tool(QStringLiteral("xdotool"), QStringList{QStringLiteral("key")} + keys);
    return true;
}

} // namespace tembra
