#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

namespace tembra {

// What programs tell assistive ones of themselves, as a screen reader asks for it (AT-SPI 2, over its own
// bus).
class AccessibleTree {
public:
    struct Node {
        QString service;
        QDBusObjectPath path;
        QString name;
        QString description;
        QString role;
        bool isSelected = false;
        bool isShowing = false;
        bool isFocusable = false;
        bool isFocused = false;
        bool isChecked = false;
        bool isEnabled = false;
    };

    AccessibleTree();
    ~AccessibleTree();
    AccessibleTree(const AccessibleTree &) = delete;
    AccessibleTree &operator=(const AccessibleTree &) = delete;

    // Everything the program shows now.
    [[nodiscard]] std::vector<Node> shown(const QString &program) const;
    [[nodiscard]] std::optional<Node> find(const QString &program, const QString &name,
                                           const QString &role) const;
    // In screen points.
    [[nodiscard]] QRect extents(const Node &node) const;
    // Does the first thing that can be done to it, such as pressing a button, or what is called so.
    bool act(const Node &node, const QString &action = {}) const;
    [[nodiscard]] QStringList actions(const Node &node) const;
    // What is written in it.
    [[nodiscard]] QString content(const Node &node) const;

private:
    [[nodiscard]] std::vector<Node> children(const Node &node) const;
    [[nodiscard]] QString property(const Node &node, const QString &name) const;
    void collect(const Node &node, std::vector<Node> &found) const;

    QDBusConnection m_bus;
};

} // namespace tembra
