// What a frame of the editor's canvas costs while the pointer draws on an image of 3840 × 2160 with two
// hundred annotations, fit to a window of 1280 × 800, and while it zooms; beside what it costs to fill that
// window. Run through bench/run, on a display that draws in software.

#include "InterfacePictures.h"
#include "Memory.h"
#include "Row.h"
#include "Timing.h"
#include "editor/canvas/ScreenshotCanvasView.h"
#include "support/FakePasteboard.h"
#include "support/ManualScheduler.h"
#include "support/MemoryUserDefaults.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QWindow>

#include <cmath>

using namespace tembra;
using namespace tembra::bench;

namespace {

using Kind = ScreenshotAnnotation::Kind;

constexpr QSize imageSize(3'840, 2'160);
constexpr QSize windowSize(1'280, 800);
constexpr int count = 200;

ScreenshotAnnotation annotation(int number) {
    static constexpr std::array kinds{Kind::arrow,   Kind::pencil, Kind::line,   Kind::rectangle,
                                      Kind::ellipse, Kind::text,   Kind::number, Kind::blur};
    const Kind kind = kinds[static_cast<std::size_t>(number) % kinds.size()];
    const double x = 40 + 250.0 * (number % 15);
    const double y = 40 + 150.0 * (number / 15);
    ScreenshotAnnotation annotation{.id = QUuid::createUuid(),
                                    .kind = kind,
                                    .points = {{x, y}, {x + 200, y + 110}},
                                    .color = {1, 0.31, 0.34, 1},
                                    .width = 14};
    if (kind == Kind::text)
        annotation.text = EditorText{QStringLiteral("Click here next"), 40, {1, 0.31, 0.34, 1}, 300};
    if (kind == Kind::number)
        annotation.number = EditorNumber{.value = number, .diameter = 90};
    if (kind == Kind::blur)
        annotation.blur = EditorBlur{};
    if (kind == Kind::pencil) {
        annotation.points.clear();
        for (int i = 0; i < 100; ++i)
            annotation.points.push_back({x + 2.0 * i, y + 50 + 40 * std::sin(i / 8.0)});
    }
    return annotation;
}

class BareWindow final : public QWidget {
protected:
    void paintEvent(QPaintEvent *event) override { QPainter(this).fillRect(event->rect(), Qt::darkGray); }
};

// Everything that an event leads to, up to the pixels in the window.
double frame(QWidget &widget, QEvent &event) {
    return milliseconds([&] {
        QCoreApplication::sendEvent(&widget, &event);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        QCoreApplication::sendPostedEvents(&widget, QEvent::UpdateRequest);
        QCoreApplication::processEvents();
    });
}

double mouse(QWidget &widget, QEvent::Type type, QPointF point, Qt::KeyboardModifiers modifiers = {}) {
    const bool isDown = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, point, widget.mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      isDown ? Qt::LeftButton : Qt::NoButton, modifiers);
    return frame(widget, event);
}

struct Drag {
    std::vector<double> moves;
    // Of the press and the release too.
    double longest = 0;
};

Drag drag(QWidget &canvas, QPointF from, QPointF to) {
    Drag drag;
    drag.longest = mouse(canvas, QEvent::MouseButtonPress, from);
    constexpr int steps = 120;
    for (int step = 1; step <= steps; ++step)
        drag.moves.push_back(mouse(canvas, QEvent::MouseMove, from + (to - from) * step / steps));
    drag.longest =
        std::max({drag.longest, mouse(canvas, QEvent::MouseButtonRelease, to), longest(drag.moves)});
    return drag;
}

// Of a hundred frames the 95th: single ones are another program's turn on a shared machine.
void report(const std::string &what, const std::vector<double> &frames, double floor, double goal) {
    printRow({.what = what + ", 95th of 100",
              .ours = quantile(frames, 0.95),
              .unit = "ms",
              .peer = Peer{"filling the window", floor},
              .goal = atMost(goal)});
}

void awaitExposed(QWidget &window) {
    while (!window.windowHandle() || !window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

double fillWindow() {
    BareWindow window;
    window.resize(windowSize);
    window.show();
    awaitExposed(window);
    std::vector<double> fills;
    for (int round = 0; round < 50; ++round) {
        window.update();
        QEvent none(QEvent::None);
        fills.push_back(frame(window, none));
    }
    return median(fills);
}

std::vector<double> zoom(ScreenshotCanvasView &canvas) {
    std::vector<double> steps;
    for (int round = 0; round < 4; ++round) {
        for (int step = 0; step < 24; ++step) {
            QWheelEvent event(QPointF(600, 350), canvas.mapToGlobal(QPointF(600, 350)), {},
                              {0, step < 12 ? 120 : -120}, Qt::NoButton, Qt::ControlModifier,
                              Qt::NoScrollPhase, false);
            steps.push_back(frame(canvas, event));
        }
    }
    return steps;
}

void measure(ScreenshotCanvasView &canvas, ScreenshotEditDocument &document, double floor) {
    double longestStep = 0;
    const auto reportDrag = [&](const std::string &what, QPointF from, QPointF to) {
        const Drag made = drag(canvas, from, to);
        report(what, made.moves, floor, 8);
        longestStep = std::max(longestStep, made.longest);
    };
    for (const auto &[name, tool] : {std::pair{"an arrow", EditorTool::arrow},
                                     {"with the pencil", EditorTool::pencil},
                                     {"a rectangle", EditorTool::rectangle},
                                     {"an ellipse", EditorTool::ellipse},
                                     {"a blur", EditorTool::blur}}) {
        canvas.setTool(tool);
        reportDrag(std::string("a frame drawing ") + name, {120, 100}, {1'100, 560});
    }
    canvas.setTool(EditorTool::select);
    document.setSelectedIDs({document.annotations().front().id});
    const QPointF middle = canvas.viewport().toView(QPointF(140, 95));
    reportDrag("a frame moving the lowest of them", middle, middle + QPointF(500, 300));
    canvas.selectAll();
    const QPointF grip = canvas.viewport().toView(document.annotations()[3].path().boundingRect().center());
    reportDrag("a frame moving all of them", grip, grip + QPointF(40, 30));
    printRow({.what = "longest step of all these, press and release too",
              .ours = longestStep,
              .unit = "ms",
              .peer = Peer{"filling the window", floor}});
    report("a zoom step", zoom(canvas), floor, 16);
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const double floor = fillWindow();
    MemoryUserDefaults defaults;
    FakePasteboard pasteboard;
    ScreenshotEditLoaded loaded;
    loaded.size = imageSize;
    ScreenshotEditDocument document(loaded);
    ManualScheduler scheduler;
    ScreenshotCanvasView canvas(defaults, pasteboard, scheduler);
    document.onChange = [&canvas] { canvas.documentChanged(); };
    canvas.resize(windowSize);
    canvas.show();
    awaitExposed(canvas);
    const double before = memory().now;
    auto pyramid = std::make_shared<const ImagePyramid>(interfacePicture(imageSize, 1), imageSize);
    canvas.setDocument(&document, pyramid);
    std::vector<ScreenshotAnnotation> all;
    for (int number = 1; number <= count; ++number)
        all.push_back(annotation(number));
    document.apply(all, {}, QStringLiteral("all"));
    QCoreApplication::processEvents();

    printArea("The editor's canvas, 3840 × 2160 in 1280 × 800, 200 annotations");
    measure(canvas, document, floor);
    printRow({.what = "memory of document and canvas",
              .ours = memory().now - before,
              .unit = "MiB",
              .peer = Peer{"the decoded image", 4.0 * imageSize.width() * imageSize.height() / 1'048'576},
              .goal = atMostTimes(2.5)});
    return EXIT_SUCCESS;
}
