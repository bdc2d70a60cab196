#include "imaging/PngEncoder.h"

#include "imaging/PictureDecoding.h"
#include "imaging/PictureHeader.h"
#include "imaging/TestImages.h"

#include <QtEndian>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

const PictureMetadata described{QSize(5906, 2835), QStringLiteral("2026-11-21 10:15"),
                                QStringLiteral("scrot")};

} // namespace

TEST(PngEncoderTest, everyPixelComesBackAsItWas) {
    constexpr QSize sizes[] = {{1, 1}, {1, 2}, {3, 1}, {7, 5}, {640, 3}, {2, 900}, {500, 401}, {1301, 700}};
    for (const QSize size : sizes) {
        for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32}) {
            for (const QImage &image : {testImage(size, format), noise(size, format),
                                        drawnImage(size, format, 0), drawnImage(size, format, 0.3)}) {
                const auto file = encodePng(image, {});
                ASSERT_TRUE(file);
                QImage expected = image;
                // By chance there is nothing transparent in the smallest ones.
                if (readByQt(*file).format() == QImage::Format_RGB32)
                    expected.convertTo(QImage::Format_RGB32);
                EXPECT_EQ(readByQt(*file), expected) << size.width() << " × " << size.height();
                EXPECT_EQ(decodePicture(*file), expected) << size.width() << " × " << size.height();
            }
        }
    }
}

TEST(PngEncoderTest, alphaIsWrittenOnlyWhereThereIsSome) {
    constexpr qsizetype kindOffset = 25;
    QImage image = testImage({40, 30}, QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(encodePng(image, {})->at(kindOffset), 2);
    image.setPixel(39, 29, 0xfe01'0203);
    EXPECT_EQ(encodePng(image, {})->at(kindOffset), 6);
    const QImage premultiplied = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(decodePicture(*encodePng(premultiplied, {})),
              premultiplied.convertToFormat(QImage::Format_ARGB32));
}

TEST(PngEncoderTest, tellsWhatItIsToldAndNothingElse) {
    QImage image = testImage({40, 30}, QImage::Format_RGB32);
    image.setText(QStringLiteral("Comment"), QStringLiteral("hidden"));
    image.setDotsPerMeterX(1);
    QByteArray names;
    const auto file = encodePng(image, described);
    for (qsizetype at = 8; at < file->size();) {
        names += file->mid(at + 4, 4) + ' ';
        at += 12 + qFromBigEndian<quint32>(file->constData() + at);
    }
    EXPECT_EQ(names.toStdString(), "IHDR sRGB pHYs tEXt tEXt IDAT IDAT IEND ");
    EXPECT_EQ(readPictureHeader(*file)->metadata, described);
    EXPECT_EQ(readPictureHeader(*encodePng(image, {}))->metadata, PictureMetadata());
    const PictureMetadata foreign{{}, QString(), QString::fromUtf8("\xe6\x88\xaa\xe5\x9c\x96")};
    EXPECT_EQ(readPictureHeader(*encodePng(image, foreign))->metadata, foreign);
    EXPECT_EQ(readByQt(*encodePng(image, foreign)).text(QStringLiteral("Software")), foreign.software);
}

TEST(PngEncoderTest, nothingIsNoPicture) {
    EXPECT_FALSE(encodePng({}, {}));
}
