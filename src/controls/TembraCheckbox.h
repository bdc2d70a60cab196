#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>

namespace tembra {

// A box to tick, with its title beside it.
class TembraCheckbox final : public QAbstractButton {
    Q_OBJECT

public:
    explicit TembraCheckbox(const QString &title, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    KeyboardFocus m_keyboardFocus{*this};
};

} // namespace tembra
