// Whatever leaves the program is made of what the user sees.

#include "editor/model/ScreenshotRenderer.h"
#include "support/Annotations.h"
#include "support/EditStore.h"
#include "support/Files.h"
#include "support/Pixels.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>

namespace tembra {
namespace {

const QRect filledArea(20, 20, 60, 40);
const QRect blurredArea(120, 20, 60, 40);
const QByteArray secretText("the password is swordfish");

// Noise that occurs nowhere else, where the user is about to cover it, and a text that no viewer shows.
QImage secretPicture() {
    QImage image(200, 120, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    quint32 state = 1;
    for (const QRect area : {filledArea, blurredArea}) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                state = state * 1'664'525 + 1'013'904'223;
                image.setPixel(x, y, state >> 8 | 0xff000000);
            }
        }
    }
    image.setText(QStringLiteral("Comment"), QString::fromLatin1(secretText));
    return image;
}

std::vector<ScreenshotAnnotation> covers() {
    ScreenshotAnnotation filled = annotationOfKind(ScreenshotAnnotation::Kind::rectangle);
    filled.filled = true;
    filled.color = {0, 0, 0, 1};
    // Beyond the corners, which are round.
    filled.points = {EditorPoint::from(filledArea.topLeft() - QPoint(12, 12)),
                     EditorPoint::from(filledArea.bottomRight() + QPoint(13, 13))};
    ScreenshotAnnotation blur = annotationOfKind(ScreenshotAnnotation::Kind::blur);
    blur.points = {EditorPoint::from(QRectF(blurredArea).topLeft()),
                   EditorPoint::from(QRectF(blurredArea).bottomRight())};
    return {filled, blur};
}

// How often three pixels of the secret follow each other in the same way in the picture.
int tracesIn(const QImage &picture) {
    const QImage secret = pixelsOf(secretPicture());
    QSet<QByteArray> known;
    const auto three = [](const QImage &image, int x, int y) {
        return QByteArray(reinterpret_cast<const char *>(image.constScanLine(y)) + 4 * x, 12);
    };
    for (const QRect area : {filledArea, blurredArea}) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x + 2 <= area.right(); ++x)
                known.insert(three(secret, x, y));
        }
    }
    int traces = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x + 2 < picture.width(); ++x)
            traces += known.contains(three(picture, x, y));
    }
    return traces;
}

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The names of a PNG's chunks, those of a row once, and of anything behind its end.
QByteArrayList chunksOf(const QByteArray &file) {
    QByteArrayList chunks;
    qsizetype at = 8;
    while (at + 12 <= file.size()) {
        const auto length = qFromBigEndian<quint32>(file.constData() + at);
        const QByteArray name = file.mid(at + 4, 4);
        if (chunks.isEmpty() || chunks.back() != name)
            chunks.append(name);
        at += qsizetype{length} + 12;
    }
    if (at != file.size())
        chunks.append("more");
    return chunks;
}

TEST(HiddenContent, staysInTheStore) {
    const QTemporaryDir cache;
    const QTemporaryDir folder;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(cache.path()));
    EditStore edits(folder.path());
    const QString shot = writeFile(edits.path(QStringLiteral("shot.png")), encoded(secretPicture(), "png"));
    ASSERT_GT(tracesIn(pixelsOf(contentOf(shot))), 1'000);
    ASSERT_TRUE(contentOf(shot).contains(secretText));
    // What a file manager keeps of the screenshot as it was.
    const QString thumbnails = cache.filePath(QStringLiteral("thumbnails/large"));
    QDir().mkpath(thumbnails);
    const QByteArray uri = "file://" + QFile::encodeName(shot);
    const QString thumbnail =
        thumbnails + u'/' +
        QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) +
        QStringLiteral(".png");
    writeFile(thumbnail, contentOf(shot));

    const auto saved = edits.store.load(shot, {}).and_then(
        [&](const auto &loaded) { return edits.store.save(loaded, covers(), {}); });
    ASSERT_TRUE(saved);
    QByteArrayList outputs{contentOf(shot), *saved->clipboardPNG};
    EXPECT_EQ(chunksOf(outputs.front()), (QByteArrayList{"IHDR", "sRGB", "pHYs", "IDAT", "IEND"}));
    ASSERT_TRUE(QFile::exists(thumbnail));
    QDirIterator files(cache.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        outputs.append(contentOf(files.next()));
    for (const QByteArray &output : outputs) {
        EXPECT_EQ(tracesIn(pixelsOf(output)), 0);
        EXPECT_FALSE(output.contains(secretText));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList(QStringLiteral("shot.png")));
}

// Colours that no screen shows because they are transparent are hidden as well.
TEST(HiddenContent, doesNotSurviveInTransparentPixels) {
    QImage image = secretPicture().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::for_each(pixels, pixels + image.width(), [](QRgb &pixel) { pixel &= 0x00ff'ffff; });
    }
    ScreenshotAnnotation everything = covers().back();
    everything.points = {{0, 0}, {200, 120}};
    const auto rendered = ScreenshotRenderer::render(encoded(image, "png"), {everything}, {});
    ASSERT_TRUE(rendered);
    const auto output = ScreenshotRenderer::encode(*rendered, QStringLiteral("public.png"));
    ASSERT_TRUE(output);
    const QImage pixels = pixelsOf(*output);
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x)
            ASSERT_EQ(pixels.pixel(x, y), 0U);
    }
}

} // namespace
} // namespace tembra
