#pragma once

#include "controls/PaintedButton.h"

namespace tembra {

// A plain push button with a title.
class TembraButton final : public PaintedButton {
    Q_OBJECT

public:
    // `primary` stands out; `plain` stands back; `accent` is the one that keeps what was done.
    enum class Kind { primary, plain, accent };
    // `compact` fits a settings row, `bar` the bar along a window's top, `card` the head of a card; `large` is
    // the only one on its page.
    enum class Size { compact, bar, card, regular, large };

    explicit TembraButton(Kind kind = Kind::primary, QWidget *parent = nullptr);
    TembraButton(Kind kind, Size size, const QString &title, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize bodySize() const override;
    Outline paint(QPainter &painter, const Theme &theme) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QColor fill() const;

    const Kind m_kind;
    const Size m_size;
};

} // namespace tembra
