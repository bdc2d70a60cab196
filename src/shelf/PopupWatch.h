#pragma once

#include <QObject>

#include <functional>

namespace tembra {

// Tells of menus and lists that close: while one is open the pointer may go anywhere, and no window hears
// where it is when it closes. Main thread.
class PopupWatch final : public QObject {
    Q_OBJECT

public:
    PopupWatch();

    std::function<void()> onClosed;

    [[nodiscard]] static bool isPopupOpen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace tembra
