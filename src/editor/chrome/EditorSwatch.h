#pragma once

#include "controls/PaintedButton.h"

#include <optional>

namespace tembra {

// A round patch of a colour; a ring marks the one in use. The swatch of a colour of one's own is a rainbow,
// around the colour where there is one.
class EditorSwatch final : public PaintedButton {
    Q_OBJECT

public:
    EditorSwatch(const QColor &color, const QString &name, QWidget *parent = nullptr);
    // Of a colour of one's own.
    explicit EditorSwatch(const QString &name, QWidget *parent = nullptr);

    void setCustomColor(const std::optional<QColor> &color);

protected:
    [[nodiscard]] QSize bodySize() const override { return {28, 28}; }
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void paintEdge(QPainter &painter, const Theme &theme, const QPointF &center) const;
    void paintRainbow(QPainter &painter, const Theme &theme, const QPointF &center) const;

    std::optional<QColor> m_color;
    const bool m_isCustom;
};

} // namespace tembra
