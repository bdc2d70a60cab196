// Pictures written, read, blurred and told by their checksum, beside what Qt and OpenCV do of it in the same
// run, on as many threads. Run through bench/run.

#include "InterfacePictures.h"
#include "PhotoPictures.h"
#include "Row.h"
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

void require(bool condition, const char *what) {
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

template <class Work>
double medianMilliseconds(int count, const Work &work) {
    std::vector<double> times;
    for (int round = 0; round < count; ++round)
        times.push_back(milliseconds(work));
    return median(times);
}

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

void measureEncoding(const char *kind, const QImage &image, double speedGoal, double sizeGoal) {
    const PictureMetadata metadata;
    qsizetype ourSize = 0;
    qsizetype theirSize = 0;
    // As the program does it: again and again.
    (void)encodePng(image, metadata);
    const double ours = medianMilliseconds(rounds, [&] { ourSize = encodePng(image, metadata)->size(); });
    const double theirs = medianMilliseconds(3, [&] { theirSize = writtenByQt(image).size(); });
    const std::string what = std::string(kind) + " " + std::to_string(image.width()) + " × " +
                             std::to_string(image.height()) + " written / Qt";
    printRow(what.c_str(), ours, theirs, "ms", speedGoal);
    printRow("  its size", static_cast<double>(ourSize) / 1024, static_cast<double>(theirSize) / 1024, "KiB",
             sizeGoal);
}

void measureDecoding(const char *kind, const QImage &image) {
    QByteArray file = writtenByQt(image);
    require(decodePicture(file) == readByQt(file).convertToFormat(QImage::Format_RGB32), "decoded otherwise");
    const double ours = medianMilliseconds(rounds, [&] { (void)decodePicture(file); });
    const double reduced = medianMilliseconds(rounds, [&] { (void)decodePicture(file, 2560); });
    const double theirs = medianMilliseconds(rounds, [&] { (void)readByQt(file); });
    printRow((std::string(kind) + " read / Qt").c_str(), ours, theirs, "ms", 0.7);
    printRow((std::string(kind) + " read at 2560 / Qt in full").c_str(), reduced, theirs, "ms", 1);
}

void measureBlur(const QImage &image) {
    const double whole = medianMilliseconds(rounds, [&] { (void)gaussianBlurred(image, image.rect(), 28); });
    const double part = medianMilliseconds(21, [&] {
        (void)gaussianBlurred(image, {1500, 900, 600, 200}, 28);
    });
#ifdef TEMBRA_BENCH_OPENCV
    cv::setNumThreads(2);
    QImage copy = image;
    const cv::Mat source(copy.height(), copy.width(), CV_8UC4, copy.bits(),
                         static_cast<std::size_t>(copy.bytesPerLine()));
    cv::Mat target;
    const auto theirs = [&](double sigma) {
        return medianMilliseconds(
            3, [&] { cv::GaussianBlur(source, target, {}, sigma, sigma, cv::BORDER_REPLICATE); });
    };
    printRow("3840 × 2160 blurred by 28 / OpenCV", whole, theirs(28), "ms", 0.1);
    for (const double sigma : {8.0, 16.0}) {
        const double ours =
            medianMilliseconds(rounds, [&] { (void)gaussianBlurred(image, image.rect(), sigma); });
        printRow(sigma == 8 ? "3840 × 2160 blurred by 8 / OpenCV" : "3840 × 2160 blurred by 16 / OpenCV",
                 ours, theirs(sigma), "ms", 1);
    }
#else
    std::printf("3840 × 2160 blurred by 28: %.2f ms; OpenCV is not installed\n", whole);
#endif
    printRow("600 × 200 of it blurred by 28 / two milliseconds", part, 2, "ms", 1);
}

void measureChecksum() {
    const QByteArray bytes(16 << 20, 'x');
    const double ours = medianMilliseconds(rounds, [&] { (void)sha256Hex(bytes); });
    const double theirs = medianMilliseconds(
        rounds, [&] { (void)QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex(); });
    printRow("SHA-256 of 16 MiB / Qt", ours, theirs, "ms", 0.5);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    constexpr double interfaceGoal = 1.0 / 3;
    for (const QSize size : {QSize(1920, 1080), QSize(3840, 2160)}) {
        measureEncoding("A page", sparsePicture(size), interfaceGoal, 1);
        measureEncoding("An interface", interfacePicture(size, 1), interfaceGoal, 1);
        measureEncoding("Another interface", interfacePicture(size, 6), interfaceGoal, 1);
        measureEncoding("A page with a small photo", illustratedPicture(size, 0.3), interfaceGoal, 1.1);
        measureEncoding("A page with a large photo", illustratedPicture(size, 0.65), interfaceGoal, 1.1);
        measureEncoding("Windows over a photo", mixedPicture(size), interfaceGoal, 1.1);
        measureEncoding("A photo", photoPicture(size, 1), 0.1, 1.1);
    }
    constexpr QSize large(3840, 2160);
    measureDecoding("An interface", interfacePicture(large, 1));
    measureDecoding("A photo", photoPicture(large, 1));
    measureBlur(photoPicture(large, 2));
    measureChecksum();
    return 0;
}
