// Saves and openings of a screenshot of 3840 × 2160 with ten annotations and a blur, beside what Qt alone
// needs to write and to read the same pixels as PNG; and how they grow with the screenshot.

#include "InterfacePictures.h"
#include "Memory.h"
#include "PhotoPictures.h"
#include "PictureSizes.h"
#include "Row.h"
#include "Timing.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "editor/model/ScreenshotEditStore.h"
#include "platform/Platform.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;

namespace {

using Kind = ScreenshotAnnotation::Kind;

constexpr QSize usualSize(3'840, 2'160);
constexpr double mebibyte = 1'024 * 1'024;

template <class T>
T require(Result<T> result) {
    if (result)
        return *std::move(result);
    std::fprintf(stderr, "%s\n", qUtf8Printable(result.error().message));
    std::exit(1);
}

// In the pixels of a screenshot of the usual size.
ScreenshotAnnotation annotation(Kind kind, int number) {
    const double x = 200.0 + 300.0 * number;
    const double y = 300.0 + 120.0 * (number % 4);
    ScreenshotAnnotation annotation{.id = QUuid::createUuid(),
                                    .kind = kind,
                                    .points = {{x, y}, {x + 420, y + 260}},
                                    .color = {1, 0.31, 0.34, 1},
                                    .width = 12};
    if (kind == Kind::text)
        annotation.text = EditorText{QStringLiteral("Click here next"), 48, {1, 0.31, 0.34, 1}, 600};
    if (kind == Kind::text)
        annotation.color = {1, 1, 1, 1};
    if (kind == Kind::number)
        annotation.number = EditorNumber{.value = number, .diameter = 96};
    if (kind == Kind::arrow)
        annotation.bendPoint = EditorPoint{x + 300, y};
    if (kind == Kind::pencil) {
        annotation.points.clear();
        for (int i = 0; i < 200; ++i)
            annotation.points.push_back({x + 3.0 * i, y + 80 * std::sin(i / 12.0)});
    }
    return annotation;
}

void scale(ScreenshotAnnotation &annotation, double factor) {
    for (EditorPoint &point : annotation.points)
        point = {point.x * factor, point.y * factor};
    annotation.width *= factor;
    if (annotation.bendPoint)
        annotation.bendPoint =
            EditorPoint{annotation.bendPoint->x * factor, annotation.bendPoint->y * factor};
    if (annotation.text) {
        annotation.text->fontSize *= factor;
        annotation.text->maximumWidth *= factor;
    }
    if (annotation.number)
        annotation.number->diameter *= factor;
}

// Ten and a blur, as large on each screenshot.
std::vector<ScreenshotAnnotation> annotations(QSize size) {
    std::vector<ScreenshotAnnotation> all;
    for (const Kind kind : {Kind::arrow, Kind::arrow, Kind::pencil, Kind::line, Kind::rectangle,
                            Kind::rectangle, Kind::ellipse, Kind::text, Kind::number, Kind::number})
        all.push_back(annotation(kind, static_cast<int>(all.size())));
    ScreenshotAnnotation blur = annotation(Kind::blur, 3);
    blur.points = {{1'000, 1'200}, {1'600, 1'400}};
    blur.blur = EditorBlur{EditorBlur::Strength::strong};
    all.push_back(blur);
    for (ScreenshotAnnotation &annotation : all)
        scale(annotation, double(size.width()) / usualSize.width());
    return all;
}

// In milliseconds and MiB.
struct Figures {
    Medians opening;
    Medians saving;
    double memory = 0;
};

Figures measure(const QImage &image, int rounds) {
    QtScheduler scheduler;
    ThreadQueue queue(QStringLiteral("Tembra.Editor.IO"));
    const Platform platform = makeHeadlessPlatform(scheduler);
    const QTemporaryDir folder;
    ScreenshotEditStore store(folder.filePath(QStringLiteral("edits")),
                              {*platform.fileFacts, *platform.bookmarks, *platform.fileReferences,
                               *platform.fileCoordinator, *platform.thumbnailCache, queue, scheduler});
    const QString shot = folder.filePath(QStringLiteral("shot.png"));
    image.save(shot);

    Figures figures;
    auto loaded = require(store.load(shot, {}));
    figures.opening = takingTurns(
        rounds, [&] { loaded = require(store.load(shot, {})); }, [&] { static_cast<void>(QImage(shot)); });
    const auto drawn = annotations(image.size());
    const auto save = [&] { loaded = require(store.save(loaded, drawn, {})).loaded; };
    save();
    const QImage saved(shot);
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        const Memory before = memory();
        ours.push_back(milliseconds(save));
        figures.memory = std::max(figures.memory, memory().most - before.now);
        theirs.push_back(milliseconds([&saved] {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            saved.save(&buffer, "PNG");
        }));
    }
    figures.saving = {median(ours), median(theirs)};
    return figures;
}

void measureUsual(const std::string &name, const QImage &image) {
    const Figures figures = measure(image, 5);
    printRow({.what = "save with ten annotations and a blur, " + name,
              .ours = figures.saving.ours,
              .unit = "ms",
              .peer = Peer{"Qt's PNG writer", figures.saving.theirs},
              .goal = atMostTimes(0.5)});
    printRow({.what = "load to preview, " + name,
              .ours = figures.opening.ours,
              .unit = "ms",
              .peer = Peer{"Qt's PNG reader", figures.opening.theirs},
              .goal = atMostTimes(0.6)});
    printRow({.what = "memory of a save, " + name,
              .ours = figures.memory,
              .unit = "MiB",
              .peer = Peer{"original, output, blurred copy", 3.0 * image.sizeInBytes() / mebibyte},
              .goal = atMostTimes(1.2)});
}

void measureGrowth() {
    for (const PictureSize &size : pictureSizes) {
        const Figures figures = measure(interfacePicture(size.pixels, 1), 3);
        printGrowth("megapixels", size.megapixels, "load to preview", "ms", figures.opening.ours);
        printGrowth("megapixels", size.megapixels, "Qt's PNG reader", "ms", figures.opening.theirs);
        printGrowth("megapixels", size.megapixels, "save with annotations", "ms", figures.saving.ours);
        printGrowth("megapixels", size.megapixels, "Qt's PNG writer", "ms", figures.saving.theirs);
        printGrowth("megapixels", size.megapixels, "memory of a save", "MiB", figures.memory);
    }
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    // Qt reads no picture that is larger, unless it is told to.
    QImageReader::setAllocationLimit(0);
    printArea("Screenshots of 3840 × 2160 and their edits");
    measureUsual("an interface", interfacePicture(usualSize, 1));
    measureUsual("a photograph", photoPicture(usualSize, 1));
    measureGrowth();
    return EXIT_SUCCESS;
}
