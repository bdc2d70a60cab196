#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>

namespace tembra {

// A button that reads as a link.
class TembraLinkButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit TembraLinkButton(const QString &title, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    KeyboardFocus m_keyboardFocus{*this};
};

} // namespace tembra
