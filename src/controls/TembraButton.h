#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>

namespace tembra {

// A plain push button with a title.
class TembraButton final : public QAbstractButton {
    Q_OBJECT

public:
    // `primary` stands out; `plain` stands back; `accent` is the one that keeps what was done.
    enum class Kind { primary, plain, accent };
    // `compact` fits a settings row or a window's header; `large` is the only one on its page.
    enum class Size { compact, regular, large };

    explicit TembraButton(Kind kind = Kind::primary, QWidget *parent = nullptr);
    TembraButton(Kind kind, Size size, const QString &title, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QColor fill() const;

    const Kind m_kind;
    const Size m_size;
    KeyboardFocus m_keyboardFocus{*this};
};

} // namespace tembra
