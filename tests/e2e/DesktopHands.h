#pragma once

#include "AccessibleTree.h"
#include "TembraProcess.h"

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

#include <optional>

namespace tembra {

// A hand on the pointer and the keys, and an eye that finds by their accessible names what the program shows.
// Screen points.
class DesktopHands {
public:
    explicit DesktopHands(const TembraProcess &tembra) : m_tembra(tembra) {}

    void press(const QStringList &keys) const;
    void type(const QString &text) const;
    void clickAt(QPoint point, const QString &button = QStringLiteral("1")) const;
    void dragAlong(QPoint from, QPoint to) const;

    // What is found by its accessible name, be it in a window or in a question about it; of any role where
    // none is told.
    [[nodiscard]] bool sees(const QString &name) const;
    [[nodiscard]] bool clickControl(const QString &name, const QString &role = {}) const;
    [[nodiscard]] std::optional<QPoint> control(const QString &name, const QString &role = {}) const;
    // Empty while nothing of that name is shown.
    [[nodiscard]] QRect place(const QString &name, const QString &role = {}) const;
    [[nodiscard]] const AccessibleTree &tree() const { return m_tree; }

protected:
    [[nodiscard]] static QStringList moveWords(QPoint point);
    void xdotool(const QStringList &words) const;
    [[nodiscard]] const TembraProcess &tembra() const { return m_tembra; }

private:
    const TembraProcess &m_tembra;
    const AccessibleTree m_tree;
};

} // namespace tembra
