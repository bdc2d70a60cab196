#pragma once

#include <QWidget>

#include <functional>

namespace tembra {

// The window of the shelf on one display: no frame, above everything, not activated by being shown.
class ShelfPanel final : public QWidget {
    Q_OBJECT

public:
    ShelfPanel();

    // A mouse button went down somewhere in the panel.
    std::function<void()> onPress;
    std::function<void()> onEscape;
    // A key, before the view with the focus sees it; whether it is handled.
    std::function<bool(const QKeyEvent &)> onKey;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tembra
