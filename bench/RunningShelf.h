#pragma once

#include "FrameWatch.h"
#include "TestPointer.h"
#include "app/AppDelegate.h"
#include "base/QtScheduler.h"
#include "platform/Platform.h"

#include <QPointer>

namespace tembra {
class NativeScreenshotGrid;
class ShelfView;
} // namespace tembra

namespace tembra::bench {

// The whole program, running in this process over the user's own folders, with a pointer to drive it.
class RunningShelf {
public:
    RunningShelf(FrameWatch &watch, TestPointer &pointer);

    void start();
    // A command of the program, as another process gives it.
    void perform(const QString &command);
    void enterNotch();
    void enterGrid();
    void leave();
    [[nodiscard]] bool isShown();
    // Something of the panel can be seen.
    [[nodiscard]] bool isOpen();
    // How many tiles there are, and how many of them have their picture.
    [[nodiscard]] std::pair<int, int> tiles();
    [[nodiscard]] NativeScreenshotGrid &grid();
    [[nodiscard]] QtScheduler &scheduler() { return m_scheduler; }

private:
    [[nodiscard]] ShelfView *view();

    QtScheduler m_scheduler;
    Platform m_platform;
    AppDelegate m_delegate;
    TestPointer &m_pointer;
    QPointer<ShelfView> m_view;
};

// Lets the event loop run until the condition is met, or for a while.
void turnUntil(const std::function<bool()> &condition, const char *what);
void turnFor(std::chrono::milliseconds time);

} // namespace tembra::bench
