#include "editor/model/EditorImageClipboard.h"
#include "editor/model/EditorImageCopies.h"
#include "editor/model/ScreenshotEditError.h"
#include "editor/model/ScreenshotRenderer.h"
#include "imaging/GaussianBlur.h"
#include "platform/linux/LinuxFileCoordinator.h"
#include "support/Annotations.h"
#include "support/FakePasteboard.h"
#include "support/Files.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "support/Pictures.h"
#include "support/Pixels.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <cmath>

namespace tembra {
namespace {

using Kind = ScreenshotAnnotation::Kind;

const QString png = QStringLiteral("public.png");
const QString jpeg = QStringLiteral("public.jpeg");

ScreenshotAnnotation blurOf(QRectF area, EditorBlur::Strength strength) {
    ScreenshotAnnotation annotation = annotationOfKind(Kind::blur);
    annotation.points = {EditorPoint::from(area.bottomRight()), EditorPoint::from(area.topLeft())};
    annotation.blur = EditorBlur{strength};
    return annotation;
}

QImage rendered(const QByteArray &original, const std::vector<ScreenshotAnnotation> &annotations,
                const std::optional<QRectF> &crop = {}) {
    const auto image = ScreenshotRenderer::render(original, annotations, crop);
    if (!image)
        throw std::runtime_error(image.error().message.toStdString());
    return *image;
}

// Every pixel of its own colour and, with `isTranslucent`, of its own alpha.
QImage variedImage(QSize size, bool isTranslucent) {
    QImage image(size, isTranslucent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    quint32 state = 7;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            state = state * 1'664'525 + 1'013'904'223;
            image.setPixel(x, y, isTranslucent ? state : state | 0xff000000);
        }
    }
    return image;
}

// How many pixels differ outside a rectangle.
int changesOutside(const QImage &one, const QImage &other, QRect rect) {
    int changes = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            changes += !rect.contains(x, y) && one.pixel(x, y) != other.pixel(x, y);
    }
    return changes;
}

TEST(ScreenshotRenderer, leavesEveryPixelAloneOnWhichNothingIsDrawn) {
    for (const bool isTranslucent : {false, true}) {
        const QImage image = variedImage(QSize(120, 90), isTranslucent);
        const QByteArray original = encoded(image, "png");
        const ScreenshotAnnotation arrow = annotationOfKind(Kind::arrow);
        const ScreenshotAnnotation blur = blurOf({80, 50, 30.5, 30}, EditorBlur::Strength::medium);
        const QImage result = pixelsOf(*ScreenshotRenderer::encode(rendered(original, {arrow, blur}), png));
        EXPECT_EQ(result.size(), image.size());
        const QRect touched = arrow.bounds().toAlignedRect() | QRect(80, 50, 31, 30);
        EXPECT_EQ(changesOutside(result, image.convertToFormat(QImage::Format_ARGB32), touched), 0);
        EXPECT_GT(changesOutside(result, image.convertToFormat(QImage::Format_ARGB32), QRect()), 1'000);
    }
}

TEST(ScreenshotRenderer, cutsToTheCropAndMovesWhatIsDrawnWithIt) {
    const QByteArray original = pictureBytes("png", QSize(200, 160));
    ScreenshotAnnotation filled = annotationOfKind(Kind::rectangle);
    filled.filled = true;
    const std::vector annotations{filled, blurOf({50, 30, 80, 40}, EditorBlur::Strength::light)};
    const QImage whole = rendered(original, annotations);
    EXPECT_EQ(pixelsOf(rendered(original, annotations, QRectF(30, 20, 100, 50))),
              pixelsOf(whole.copy(30, 20, 100, 50)));
    for (const QRectF crop : {QRectF(0, 0, 201, 160), QRectF(0.5, 0, 10, 10), QRectF(0, 0, 0, 10)}) {
        const auto failed = ScreenshotRenderer::render(original, {}, crop);
        ASSERT_FALSE(failed);
        EXPECT_EQ(failed.error().message, QStringLiteral("This crop couldn’t be opened."));
    }
}

TEST(ScreenshotRenderer, blursTheOriginalOnceHoweverManyAreasOverlap) {
    const QImage image = variedImage(QSize(200, 150), false);
    const QByteArray original = encoded(image, "png");
    ScreenshotAnnotation line = annotationOfKind(Kind::line);
    line.points = {{0, 60}, {199, 60}};
    const auto strong = EditorBlur::Strength::strong;
    const QImage result =
        rendered(original, {blurOf({10.4, 20, 60, 60}, strong), line, blurOf({40, 30, 70, 60}, strong)});
    const QImage blurred = gaussianBlurred(image, image.rect(), 28);
    const QRect first(10, 20, 61, 60);
    const QRect second(40, 30, 70, 60);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            // What is drawn lies on top of what is blurred.
            if (std::abs(y - 60) < 8)
                continue;
            const bool isBlurred = first.contains(x, y) || second.contains(x, y);
            ASSERT_EQ(result.pixel(x, y), (isBlurred ? blurred : image).pixel(x, y)) << x << ' ' << y;
        }
    }
}

TEST(ScreenshotRenderer, refusesWhatItCannotReadOrWrite) {
    const QByteArray picture = pictureBytes("png");
    for (const QByteArray &broken : {QByteArray("no image"), QByteArray(), picture.first(200)}) {
        const auto failed = ScreenshotRenderer::render(broken, {}, {});
        ASSERT_FALSE(failed);
        EXPECT_EQ(failed.error().message, QStringLiteral("This image couldn’t be opened."));
    }
    const auto unknown =
        ScreenshotRenderer::encode(QImage(1, 1, QImage::Format_RGB32), QStringLiteral("public.heic"));
    EXPECT_EQ(unknown.error(), ScreenshotEditError::of(ScreenshotEditError::unsupportedFormat));
    EXPECT_EQ(ScreenshotRenderer::encode(QImage(), png).error(),
              ScreenshotEditError::of(ScreenshotEditError::notEncoded));
}

TEST(ScreenshotRenderer, keepsJpegCloseToWhatItWas) {
    const QImage image = variedImage(QSize(1, 1), false).scaled(64, 48);
    const QByteArray again = *ScreenshotRenderer::encode(rendered(encoded(image, "jpg"), {}), jpeg);
    const QColor before(image.pixel(30, 30));
    const QColor after(QImage::fromData(again, "jpg").pixel(30, 30));
    EXPECT_LE(std::abs(before.red() - after.red()) + std::abs(before.green() - after.green()), 8);
}

// Drawing beyond the sizes of screens, at the far end of a long picture.
TEST(ScreenshotRenderer, drawsOnTheLongestPictures) {
    QImage strip(32'768, 24, QImage::Format_RGB32);
    strip.fill(Qt::white);
    ScreenshotAnnotation filled = annotationOfKind(Kind::rectangle);
    filled.filled = true;
    filled.color = {0, 0, 1, 1};
    filled.points = {{32'700, 4}, {32'760, 20}};
    const QImage result = rendered(encoded(strip, "png"), {filled});
    EXPECT_EQ(result.pixel(32'730, 12), qRgb(0, 0, 255));
    EXPECT_EQ(result.pixel(32'600, 12), qRgb(255, 255, 255));
}

TEST(EditorImageClipboard, offersOneItemAsImageAndAsFile) {
    const QTemporaryDir root;
    const LinuxFileCoordinator files;
    const QByteArray image = pictureBytes("png");
    const auto file =
        EditorImageClipboard::prepare(image, QStringLiteral("/home/me/a.b.jpg"), root.path(), files);
    ASSERT_TRUE(file);
    EXPECT_EQ(QFileInfo(*file).fileName(), QStringLiteral("a.b.png"));
    FakePasteboard pasteboard;
    ASSERT_TRUE(EditorImageClipboard::write(image, *file, pasteboard));
    EXPECT_EQ(pasteboard.items, (std::vector<Pasteboard::Item>{{*file, png, image}}));

    EditorImageClipboard::discard(*file);
    EXPECT_TRUE(QDir(root.path()).isEmpty());
    const QString longest = u'/' + QString(127, u'é');
    const auto shortened = EditorImageClipboard::prepare(image, longest, root.path(), files);
    ASSERT_TRUE(shortened) << shortened.error().message.toStdString();
    EditorImageClipboard::discard(*shortened);
    EditorImageClipboard::discard(root.filePath(QStringLiteral("never.png")));
    EXPECT_TRUE(QFileInfo::exists(root.path()));
    writeFile(root.filePath(QStringLiteral("file")));
    EXPECT_FALSE(
        EditorImageClipboard::prepare(image, *file, root.filePath(QStringLiteral("file/in")), files));
}

TEST(EditorImageCopies, keepsTheCopyThatIsOnTheClipboardAndNoOther) {
    const QTemporaryDir folder;
    const QString root = folder.filePath(QStringLiteral("copies"));
    const LinuxFileCoordinator files;
    FakePasteboard pasteboard;
    ManualQueue queue;
    ManualScheduler scheduler;
    EditorImageCopies copies(root, {pasteboard, files, queue, scheduler});
    const auto settle = [&] {
        queue.runAll();
        scheduler.settle();
        queue.runAll();
    };
    const auto copy = [&] {
        std::optional<Result<void>> outcome;
        copies.copy(pictureBytes("png"), QStringLiteral("/shot.jpg"),
                    [&](const auto &result) { outcome = result; });
        settle();
        return outcome && *outcome;
    };
    const auto kept = [&root] { return QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); };

    EXPECT_TRUE(copy());
    EXPECT_TRUE(copy());
    ASSERT_EQ(kept(), 1);
    EXPECT_TRUE(QFile::exists(pasteboard.items.front().path));
    pasteboard.refuses = true;
    EXPECT_FALSE(copy());
    EXPECT_EQ(kept(), 1);
    // Told of once more, as some desktops do.
    pasteboard.offered.setUrls({QUrl::fromLocalFile(pasteboard.items.front().path)});
    pasteboard.takeByAnother();
    settle();
    EXPECT_EQ(kept(), 1);
    pasteboard.offered.clear();
    pasteboard.takeByAnother();
    settle();
    EXPECT_EQ(kept(), 0);

    QDir().mkpath(root + QStringLiteral("/Editor-left"));
    copies.discardAll();
    settle();
    EXPECT_EQ(kept(), 0);
}

} // namespace
} // namespace tembra
