#pragma once

#include <QAbstractButton>

namespace tembra {

// A plain push button with a title.
class TembraButton final : public QAbstractButton {
    Q_OBJECT

public:
    // `primary` stands out; `plain` stands back.
    enum class Kind { primary, plain };

    explicit TembraButton(Kind kind = Kind::primary, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] QColor fill() const;

    const Kind m_kind;
};

} // namespace tembra
