#pragma once

#include "controls/KeyboardFocus.h"

#include <QAbstractButton>

namespace tembra {

// One of the choices of a segmented control, which owns it and paints what marks the current one.
class TembraSegment final : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr qreal radius = 6;

    TembraSegment(const QString &title, QWidget *parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    KeyboardFocus m_keyboardFocus{*this};
};

} // namespace tembra
