#include "ShelfMeasurement.h"

#include "Timing.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/ScreenshotScrollView.h"
#include "shelf/ShelfPanel.h"

#include <QFile>
#include <QScrollBar>

#include <cstdlib>
#include <fstream>
#include <optional>

namespace tembra::bench {

using namespace std::chrono_literals;

namespace {

constexpr auto frameInterval = 16ms;
constexpr int scrolledFrames = 150;

// Waits until the display has done all that was asked of it.
void synchronise() {
    xcb_connection_t *const xcb = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::free(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

double memoryMebibytes(const std::string &kind) {
    std::ifstream words("/proc/self/smaps_rollup");
    std::string word;
    while (words >> word && word != kind + ':') {
    }
    double kibibytes = 0;
    words >> kibibytes;
    return kibibytes / 1024;
}

} // namespace

ShelfMeasurement::ShelfMeasurement(FrameWatch &watch) : m_watch(watch), m_shelf(watch, m_pointer) {}

void ShelfMeasurement::addFrames(const std::string &name) {
    for (const FrameWatch::Frame &frame : m_watch.takeFrames()) {
        m_figures[name].push_back(frame.wall);
        m_figures[name + "-processor"].push_back(frame.processor);
    }
}

void ShelfMeasurement::firstTiles() {
    std::optional<Clock::time_point> scanned;
    std::optional<Clock::time_point> tiles;
    std::optional<Clock::time_point> pictures;
    m_watch.onTurn = [&](Clock::time_point began) {
        if (!scanned && m_shelf.tiles().first > 0)
            scanned = began;
    };
    m_watch.onFrame = [&] {
        const auto [count, withPicture] = m_shelf.tiles();
        if (!scanned || pictures)
            return;
        tiles = tiles.value_or(Clock::now());
        if (count == withPicture)
            pictures = Clock::now();
    };
    m_shelf.start();
    m_shelf.perform(QStringLiteral("open"));
    turnUntil([&] { return pictures.has_value(); }, "the pictures of the tiles did not come");
    m_watch.onTurn = [](Clock::time_point) {};
    m_watch.onFrame = [] {};
    m_figures["tiles"] = {millisecondsBetween(*scanned, *tiles)};
    m_figures["pictures"] = {millisecondsBetween(*scanned, *pictures)};
    m_shelf.perform(QStringLiteral("close"));
    turnUntil([this] { return !m_shelf.isShown(); }, "the shelf did not close");
}

double ShelfMeasurement::timeTo(const std::function<void()> &move, const std::function<bool()> &isSeen) {
    std::optional<Clock::time_point> seen;
    m_watch.onFrame = [&] {
        if (seen || !isSeen())
            return;
        synchronise();
        seen = Clock::now();
    };
    turnFor(100ms);
    m_watch.takeFrames();
    const Clock::time_point start = Clock::now();
    move();
    turnUntil([&seen] { return seen.has_value(); }, "no frame came");
    m_watch.onFrame = [] {};
    return millisecondsBetween(start, *seen);
}

void ShelfMeasurement::openings(int rounds) {
    for (int round = 0; round < rounds; ++round) {
        m_figures["notch"].push_back(
            timeTo([this] { m_shelf.enterNotch(); }, [this] { return m_shelf.isOpen(); }));
        turnFor(300ms);
        addFrames("opening");
        m_shelf.leave();
        turnUntil([this] { return !m_shelf.isShown(); }, "the shelf did not close");
        addFrames("closing");
    }
}

void ShelfMeasurement::openingsAfterChanges(int rounds, const QDir &captures) {
    QStringList names = captures.entryList(QDir::Files);
    for (int round = 0; round < rounds && names.size() > 1; ++round) {
        QFile::remove(captures.filePath(names.takeLast()));
        // Long enough for the shelf to know.
        turnFor(600ms);
        m_figures["changed-notch"].push_back(
            timeTo([this] { m_shelf.enterNotch(); }, [this] { return m_shelf.isOpen(); }));
        turnFor(300ms);
        m_shelf.leave();
        turnUntil([this] { return !m_shelf.isShown(); }, "the shelf did not close");
    }
    m_watch.takeFrames();
}

void ShelfMeasurement::bareOpenings(int rounds) {
    const auto watched = m_watch.isWatched;
    BareShelf bare(qEnvironmentVariable("COMPOSITOR") != u"none");
    m_watch.isWatched = [&bare](const QWidget &window) { return &window == &bare; };
    for (int round = 0; round < rounds; ++round) {
        m_figures["bare-notch"].push_back(
            timeTo([&] { m_pointer.moveTo(bare.strip()); }, [] { return true; }));
        m_watch.takeFrames();
        bare.animate(15);
        turnUntil([&bare] { return !bare.isAnimating(); }, "the bare window did not paint");
        addFrames("bare-frame");
        m_shelf.leave();
        turnUntil([&bare] { return !bare.isVisible(); }, "the bare window did not close");
    }
    m_watch.isWatched = watched;
}

void ShelfMeasurement::scroll(int step, int frames) {
    QScrollBar &bar = *m_shelf.grid().scrollView().verticalScrollBar();
    WorkItem next;
    int left = frames;
    std::function<void()> move = [&] {
        bar.setValue(bar.value() + step);
        if (--left > 0)
            next = m_shelf.scheduler().schedule(frameInterval, move);
    };
    next = m_shelf.scheduler().schedule(0ns, move);
    turnUntil([&left] { return left == 0; }, "scrolling did not end");
    turnFor(50ms);
}

void ShelfMeasurement::scrolling() {
    constexpr int step = 40;
    m_shelf.enterNotch();
    turnUntil([this] { return m_shelf.isOpen(); }, "the shelf did not open");
    m_shelf.enterGrid();
    turnFor(400ms);
    scroll(step, scrolledFrames);
    scroll(-step, scrolledFrames);
    m_watch.takeFrames();
    scroll(step, scrolledFrames);
    scroll(-step, scrolledFrames);
    addFrames("scrolling");
}

void ShelfMeasurement::memoryAfterAll() {
    const QScrollBar &bar = *m_shelf.grid().scrollView().verticalScrollBar();
    scroll(bar.pageStep(), 1 + bar.maximum() / bar.pageStep());
    turnFor(1s);
    m_figures["proportional-memory"] = {memoryMebibytes("Pss")};
    m_figures["resident-memory"] = {memoryMebibytes("Rss")};
}

} // namespace tembra::bench
