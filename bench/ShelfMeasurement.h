#pragma once

#include "BareShelf.h"
#include "FrameWatch.h"
#include "RunningShelf.h"
#include "TestPointer.h"

#include <QDir>

#include <map>
#include <string>

namespace tembra::bench {

// Figures by their names: a list of samples each.
using Figures = std::map<std::string, std::vector<double>>;

// Measures the running shelf over the folder of captures that the environment names.
class ShelfMeasurement {
public:
    explicit ShelfMeasurement(FrameWatch &watch);

    // From the end of the first scan until the tiles, and until their pictures can be seen.
    void firstTiles();
    // From the pointer's coming into the notch to the first frame that shows something, and each frame of
    // opening and closing.
    void openings(int rounds);
    // The first frame when a capture has gone since the shelf was open.
    void openingsAfterChanges(int rounds, const QDir &captures);
    // The first frame of the bare window, and each that follows.
    void bareOpenings(int rounds);
    // Each frame of scrolling there and back over the same tiles.
    void scrolling();
    // The memory of the process when every tile has been seen.
    void memoryAfterAll();

    [[nodiscard]] const Figures &figures() const { return m_figures; }

private:
    // The frames' work goes to two figures.
    void addFrames(const std::string &name);
    // Scrolls by this much in each of so many frames.
    void scroll(int step, int frames);
    // Milliseconds from the move until the window has painted something and the display has it.
    double timeTo(const std::function<void()> &move, const std::function<bool()> &isSeen);

    FrameWatch &m_watch;
    TestPointer m_pointer;
    RunningShelf m_shelf;
    Figures m_figures;
};

} // namespace tembra::bench
