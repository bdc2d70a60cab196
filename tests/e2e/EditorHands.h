#pragma once

#include "DesktopHands.h"

#include <QJsonObject>
#include <QPointF>

#include <functional>
#include <initializer_list>

namespace tembra {

// A hand on the pointer and the keys of the screenshot editor. Points are those of the image that is shown.
class EditorHands : public DesktopHands {
public:
    using DesktopHands::DesktopHands;

    // What the program tells of the editor.
    [[nodiscard]] QJsonObject status() const;
    [[nodiscard]] bool waitFor(const std::function<bool(const QJsonObject &)> &wish) const;
    // Opens a screenshot by the command line; whether every pixel of it came to be shown.
    [[nodiscard]] bool open(const QString &path) const;
    [[nodiscard]] bool isShown(const QString &path) const;
    // Whether the window comes to be gone.
    [[nodiscard]] bool isClosed() const;
    [[nodiscard]] bool hasAnnotations(int count) const;
    // Whether the banner comes to say this; nothing for no banner.
    [[nodiscard]] bool says(const QString &sentence) const;
    [[nodiscard]] bool isSaved() const;
    // Saves by the keys; whether nothing is unsaved any more.
    [[nodiscard]] bool save() const;

    // Takes a tool by its letter; whether it is in use.
    [[nodiscard]] bool take(const char *letter, const char *tool) const;
    void click(QPointF point, const QString &button = QStringLiteral("1")) const;
    void doubleClick(QPointF point) const;
    // Along these points with the button down.
    void drag(std::initializer_list<QPointF> points) const;

    // Makes the window as low as it may be, at the top of the display.
    void makeRoomBelow() const;

private:
    [[nodiscard]] QStringList moveTo(QPointF point, const QJsonObject &editor) const;
};

} // namespace tembra
