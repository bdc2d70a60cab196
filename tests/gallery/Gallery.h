#pragma once

#include "controls/Theme.h"

#include <QWidget>

#include <functional>

namespace tembra {

// One column with every control in every state, in one appearance.
class Gallery final : public QWidget {
    Q_OBJECT

public:
    explicit Gallery(Appearance appearance, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addButtons();
    void addChoices();
    void addTexts();
    void addSettings();
    // A control of each state, made by the function: as it is, hovered, pressed, focused and disabled.
    void addStates(const std::function<QWidget *()> &make);
    void addRowOf(const QList<QWidget *> &widgets);
};

} // namespace tembra
