#pragma once

#include "Timing.h"

#include <QApplication>

#include <functional>
#include <vector>

namespace tembra::bench {

// The application object, which sees every event and so what the main thread does for each frame of a window:
// all its work since the frame before, up to the end of the painting. What it sleeps in between is not work.
class FrameWatch final : public QApplication {
public:
    // Milliseconds by the clock and of the processor.
    struct Frame {
        double wall = 0;
        double processor = 0;
    };

    using QApplication::QApplication;

    // Whether the painting of a window is a frame to be counted.
    std::function<bool(const QWidget &window)> isWatched = [](const QWidget &) { return false; };
    // Called at the end of each of them.
    std::function<void()> onFrame = [] {};
    // Called after each event that the event loop delivered, with the moment when its delivery began.
    std::function<void(Clock::time_point)> onTurn = [](Clock::time_point) {};

    // The frames since the last call; work that led to none is forgotten.
    std::vector<Frame> takeFrames();

    bool notify(QObject *receiver, QEvent *event) override;

private:
    void finishTurn(Clock::time_point began, double processorBefore);

    int m_depth = 0;
    bool m_painted = false;
    Frame m_current;
    std::vector<Frame> m_frames;
};

} // namespace tembra::bench
