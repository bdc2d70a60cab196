#include "RunningShelf.h"

#include "Require.h"
#include "Timing.h"
#include "shelf/NativeScreenshotCell.h"
#include "shelf/NativeScreenshotGrid.h"
#include "shelf/ScreenshotCollectionView.h"
#include "shelf/ShelfPanel.h"
#include "shelf/ShelfView.h"

#include <QEventLoop>
#include <QScreen>

#include <cstdio>
#include <cstdlib>

namespace tembra::bench {

namespace {

QRect screen() {
    return QGuiApplication::primaryScreen()->geometry();
}

} // namespace

RunningShelf::RunningShelf(FrameWatch &watch, TestPointer &pointer)
    : m_platform(makePlatform(m_scheduler)), m_delegate(m_platform, m_scheduler), m_pointer(pointer) {
    watch.isWatched = [](const QWidget &window) { return qobject_cast<const ShelfPanel *>(&window); };
    leave();
}

void RunningShelf::start() {
    m_delegate.applicationDidFinishLaunching();
}

void RunningShelf::perform(const QString &command) {
    if (const auto done = m_delegate.perform(command, {}); !done) {
        std::fprintf(stderr, "%s\n", qPrintable(done.error().message));
        std::exit(1);
    }
}

void RunningShelf::enterNotch() {
    m_pointer.moveTo({screen().center().x(), 3});
}

void RunningShelf::enterGrid() {
    m_pointer.moveTo({screen().center().x(), 150});
}

void RunningShelf::leave() {
    m_pointer.moveTo(screen().center() + QPoint(0, screen().height() / 4));
}

ShelfView *RunningShelf::view() {
    const QWidgetList windows = m_view ? QWidgetList() : QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (qobject_cast<const ShelfPanel *>(window))
            m_view = window->findChild<ShelfView *>();
    }
    return m_view;
}

bool RunningShelf::isShown() {
    return view() && view()->isVisible();
}

bool RunningShelf::isOpen() {
    return isShown() && view()->body().height() >= 1;
}

NativeScreenshotGrid &RunningShelf::grid() {
    return *view()->findChild<NativeScreenshotGrid *>();
}

std::pair<int, int> RunningShelf::tiles() {
    if (!isShown())
        return {};
    std::pair<int, int> count;
    for (const auto &[index, cell] : grid().collectionView().cells().shown()) {
        ++count.first;
        count.second += cell->isShowingThumbnail() ? 1 : 0;
    }
    return count;
}

void turnUntil(const std::function<bool()> &condition, const char *what) {
    const auto start = Clock::now();
    while (!condition()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
        require(millisecondsSince(start) < 60'000, what);
    }
}

void turnFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QtScheduler scheduler;
    const WorkItem end = scheduler.schedule(time, [&loop] { loop.quit(); });
    loop.exec();
}

} // namespace tembra::bench
