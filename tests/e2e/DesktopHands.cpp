#include "DesktopHands.h"

namespace tembra {

namespace {

const QString program = QStringLiteral("Tembra");

} // namespace

void DesktopHands::press(const QStringList &keys) const {
    xdotool(QStringList{QStringLiteral("key")} + keys);
}

void DesktopHands::type(const QString &text) const {
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"), text});
}

void DesktopHands::clickAt(QPoint point, const QString &button) const {
    xdotool(moveWords(point) + QStringList{QStringLiteral("click"), button});
}

void DesktopHands::dragAlong(QPoint from, QPoint to) const {
    const QString button = QStringLiteral("1");
    xdotool(moveWords(from) + QStringList{QStringLiteral("mousedown"), button} + moveWords((from + to) / 2) +
            moveWords(to) + QStringList{QStringLiteral("mouseup"), button});
}

bool DesktopHands::sees(const QString &name) const {
    return m_tembra.waitFor([&](const QJsonObject &) { return control(name).has_value(); });
}

bool DesktopHands::clickControl(const QString &name, const QString &role) const {
    std::optional<QPoint> found;
    const bool isThere = m_tembra.waitFor([&](const QJsonObject &) {
        found = control(name, role);
        return found.has_value();
    });
    if (isThere)
        clickAt(*found);
    return isThere;
}

std::optional<QPoint> DesktopHands::control(const QString &name, const QString &role) const {
    const QRect extents = place(name, role);
    return extents.isEmpty() ? std::nullopt : std::optional(extents.center());
}

QRect DesktopHands::place(const QString &name, const QString &role) const {
    for (const AccessibleTree::Node &node : m_tree.shown(program)) {
        const bool isMeant = node.name == name && (role.isEmpty() || node.role == role);
        const QRect extents = isMeant ? m_tree.extents(node) : QRect();
        if (!extents.isEmpty())
            return extents;
    }
    return {};
}

QStringList DesktopHands::moveWords(QPoint point) {
    return {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

void DesktopHands::xdotool(const QStringList &words) const {
    m_tembra.tool(QStringLiteral("xdotool"), words);
}

} // namespace tembra
