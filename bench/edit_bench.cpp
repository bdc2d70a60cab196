// Saves and openings of a screenshot of 3840 × 2160 with ten annotations and a blur, beside what Qt alone
// needs to write and to read the same pixels as PNG. Run through bench/run.

#include "InterfacePictures.h"
#include "Memory.h"
#include "PhotoPictures.h"
#include "Row.h"
#include "base/QtScheduler.h"
#include "base/ThreadQueue.h"
#include "editor/model/ScreenshotEditStore.h"
#include "platform/Platform.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

using namespace tembra;
using namespace tembra::bench;

namespace {

using Kind = ScreenshotAnnotation::Kind;

constexpr QSize size(3'840, 2'160);
constexpr int rounds = 7;

template <class T>
T require(Result<T> result) {
    if (result)
        return *std::move(result);
    std::fprintf(stderr, "%s\n", qUtf8Printable(result.error().message));
    std::exit(1);
}

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

std::vector<ScreenshotAnnotation> annotations() {
    std::vector<ScreenshotAnnotation> all;
    for (const Kind kind : {Kind::arrow, Kind::arrow, Kind::pencil, Kind::line, Kind::rectangle,
                            Kind::rectangle, Kind::ellipse, Kind::text, Kind::number, Kind::number})
        all.push_back(annotation(kind, static_cast<int>(all.size())));
    ScreenshotAnnotation blur = annotation(Kind::blur, 3);
    blur.points = {{1'000, 1'200}, {1'600, 1'400}};
    blur.blur = EditorBlur{EditorBlur::Strength::strong};
    all.push_back(blur);
    return all;
}

void measure(const char *name, const QImage &image) {
    QtScheduler scheduler;
    ThreadQueue queue(QStringLiteral("Tembra.Editor.IO"));
    const Platform platform = makeHeadlessPlatform(scheduler);
    const QTemporaryDir folder;
    ScreenshotEditStore store(folder.filePath(QStringLiteral("edits")),
                              {*platform.fileFacts, *platform.bookmarks, *platform.fileReferences,
                               *platform.fileCoordinator, *platform.thumbnailCache, queue, scheduler});
    const QString shot = folder.filePath(QStringLiteral("shot.png"));
    image.save(shot);

    std::vector<double> opening;
    std::vector<double> reading;
    std::vector<double> saving;
    std::vector<double> writing;
    auto loaded = require(store.load(shot, {}));
    for (int round = 0; round < rounds; ++round) {
        opening.push_back(milliseconds([&] { loaded = require(store.load(shot, {})); }));
        reading.push_back(milliseconds([&] { static_cast<void>(QImage(shot)); }));
    }
    const auto drawn = annotations();
    double peak = 0;
    for (int round = 0; round < rounds; ++round) {
        const Memory before = memory();
        saving.push_back(milliseconds([&] { loaded = require(store.save(loaded, drawn, {})).loaded; }));
        peak = std::max(peak, memory().most - before.now);
        const QImage saved(shot);
        writing.push_back(milliseconds([&] {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            saved.save(&buffer, "PNG");
        }));
    }
    std::printf("%s, %d × %d\n", name, size.width(), size.height());
    printRow("save, ten annotations and a blur / Qt's PNG writer", median(saving), median(writing), "ms",
             0.5);
    printRow("load to preview / Qt's PNG reader", median(opening), median(reading), "ms", 0.6);
    constexpr double megabytes = 1'024 * 1'024;
    const double copies = 3.0 * image.sizeInBytes() / megabytes;
    printRow("memory of a save / original, output, blurred copy", peak, copies, "MiB", 1.2);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    measure("interface", interfacePicture(size, 1));
    measure("photograph", photoPicture(size, 1));
}
