// Pictures written, read, blurred and told by their checksum, beside what Qt and OpenCV do of it in the same
// run, on as many threads; and how that grows with the picture.

#include "InterfacePictures.h"
#include "PhotoPictures.h"
#include "PictureSizes.h"
#include "Require.h"
#include "Row.h"
#include "Timing.h"
#include "imaging/GaussianBlur.h"
#include "imaging/PictureDecoding.h"
#include "imaging/PngEncoder.h"
#include "imaging/Sha256.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QGuiApplication>
#include <QImageReader>
#include <QLinearGradient>
#include <QPainter>

#include <cstdlib>
#ifdef TEMBRA_BENCH_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace tembra;
using namespace tembra::bench;

namespace {

constexpr int rounds = 5;

QByteArray writtenByQt(const QImage &image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    require(image.save(&buffer, "PNG"), "Qt cannot encode");
    return bytes;
}

QImage readByQt(QByteArray &bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, "png").read();
}

// A page of text and nothing else, the barest of interfaces.
QImage sparsePicture(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int y = 60; y < size.height() - 40; y += 28)
        painter.drawText(80, y,
                         QStringLiteral("Line %1 of a page with plenty of room around its words").arg(y));
    return image;
}

// A desktop whose wallpaper is a photograph, with two windows.
QImage mixedPicture(QSize size) {
    QImage image = photoPicture(size, 9);
    QPainter painter(&image);
    const QImage windows = interfacePicture(size / 2, 4);
    painter.drawImage(size.width() / 20, size.height() / 10, windows);
    painter.drawImage(size.width() / 2 - 40, size.height() * 2 / 5, interfacePicture(size / 2, 5));
    return image;
}

// A page that shows a photograph of the given share of its sides.
QImage illustratedPicture(QSize size, double share) {
    QImage image = sparsePicture(size);
    QPainter(&image).drawImage(size.width() / 4, size.height() / 8, photoPicture(size * share, 3));
    return image;
}

// A goal for the time, and one for the size, each as a share of Qt's.
struct EncodingGoals {
    double time = 0;
    double size = 0;
};

constexpr EncodingGoals interfaceGoals{1.0 / 3, 1};
constexpr EncodingGoals mixedGoals{1.0 / 3, 1.1};
constexpr EncodingGoals photographGoals{0.1, 1.1};

void measureEncoding(const char *kind, const QImage &image, const EncodingGoals &goals) {
    const PictureMetadata metadata;
    qsizetype ourSize = 0;
    qsizetype theirSize = 0;
    // As the program does it: again and again.
    (void)encodePng(image, metadata);
    const Medians times = takingTurns(
        3, [&] { ourSize = encodePng(image, metadata)->size(); },
        [&] { theirSize = writtenByQt(image).size(); });
    const std::string what = std::string(kind) + ", " + std::to_string(image.width()) + " × " +
                             std::to_string(image.height()) + ", as PNG";
    printRow({.what = what,
              .ours = times.ours,
              .unit = "ms",
              .peer = Peer{"Qt's writer", times.theirs},
              .goal = atMostTimes(goals.time)});
    printRow({.what = what + ", its size",
              .ours = static_cast<double>(ourSize) / 1024,
              .unit = "KiB",
              .peer = Peer{"Qt's writer", static_cast<double>(theirSize) / 1024},
              .goal = atMostTimes(goals.size)});
}

void measureDecoding(const char *kind, const QImage &image) {
    QByteArray file = writtenByQt(image);
    require(decodePicture(file) == readByQt(file).convertToFormat(QImage::Format_RGB32), "decoded otherwise");
    const Medians whole = takingTurns(
        rounds, [&] { (void)decodePicture(file); }, [&] { (void)readByQt(file); });
    const Medians reduced = takingTurns(
        rounds, [&] { (void)decodePicture(file, 2560); }, [&] { (void)readByQt(file); });
    printRow({.what = std::string(kind) + " read from PNG",
              .ours = whole.ours,
              .unit = "ms",
              .peer = Peer{"Qt's reader", whole.theirs},
              .goal = atMostTimes(0.7)});
    printRow({.what = std::string(kind) + " read at 2560",
              .ours = reduced.ours,
              .unit = "ms",
              .peer = Peer{"Qt's reader, whole", reduced.theirs},
              .goal = atMostTimes(1)});
}

void measureWholeBlur(const QImage &image, double sigma, double goal) {
    const auto ours = [&] { (void)gaussianBlurred(image, image.rect(), sigma); };
    Row row{.what = "3840 × 2160 blurred by " + std::to_string(static_cast<int>(sigma)),
            .unit = "ms",
            .goal = atMostTimes(goal)};
#ifdef TEMBRA_BENCH_OPENCV
    cv::setNumThreads(2);
    QImage copy = image;
    const cv::Mat source(copy.height(), copy.width(), CV_8UC4, copy.bits(),
                         static_cast<std::size_t>(copy.bytesPerLine()));
    cv::Mat target;
    const Medians times = takingTurns(
        rounds, ours, [&] { cv::GaussianBlur(source, target, {}, sigma, sigma, cv::BORDER_REPLICATE); });
    row.ours = times.ours;
    row.peer = Peer{"OpenCV, two threads", times.theirs};
#else
    row.ours = medianMilliseconds(rounds, ours);
#endif
    printRow(row);
}

void measureBlur(const QImage &image) {
#ifndef TEMBRA_BENCH_OPENCV
    printNote("OpenCV is not installed");
#endif
    measureWholeBlur(image, 28, 0.1);
    measureWholeBlur(image, 16, 1);
    measureWholeBlur(image, 8, 1);
    printRow({.what = "600 × 200 of it blurred by 28",
              .ours = medianMilliseconds(21,
                                         [&] {
                                             (void)gaussianBlurred(image, {1500, 900, 600, 200}, 28);
                                         }),
              .unit = "ms",
              .goal = atMost(2)});
}

void measureChecksum() {
    const QByteArray bytes(16 << 20, 'x');
    const Medians times = takingTurns(
        rounds, [&] { (void)sha256Hex(bytes); },
        [&] { (void)QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex(); });
    printRow({.what = "SHA-256 of 16 MiB",
              .ours = times.ours,
              .unit = "ms",
              .peer = Peer{"Qt's", times.theirs},
              .goal = atMostTimes(0.5)});
}

void measureSizes() {
    for (const PictureSize &size : pictureSizes) {
        const QImage image = interfacePicture(size.pixels, 1);
        (void)encodePng(image, {});
        printGrowth("megapixels", size.megapixels, "written as PNG", "ms",
                    medianMilliseconds(3, [&] { (void)encodePng(image, {}); }));
        printGrowth("megapixels", size.megapixels, "blurred whole by 28", "ms",
                    medianMilliseconds(3, [&] { (void)gaussianBlurred(image, image.rect(), 28); }));
    }
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    printArea("Pictures");
    constexpr QSize large(3840, 2160);
    for (const QSize size : {QSize(1920, 1080), large}) {
        measureEncoding("a page", sparsePicture(size), interfaceGoals);
        measureEncoding("an interface", interfacePicture(size, 1), interfaceGoals);
        measureEncoding("a photograph", photoPicture(size, 1), photographGoals);
    }
    measureEncoding("another interface", interfacePicture(large, 6), interfaceGoals);
    measureEncoding("a page with a small photograph", illustratedPicture(large, 0.3), mixedGoals);
    measureEncoding("a page with a large photograph", illustratedPicture(large, 0.65), mixedGoals);
    measureEncoding("windows over a photograph", mixedPicture(large), mixedGoals);
    measureDecoding("an interface", interfacePicture(large, 1));
    measureDecoding("a photograph", photoPicture(large, 1));
    measureBlur(photoPicture(large, 2));
    measureChecksum();
    measureSizes();
    return EXIT_SUCCESS;
}
