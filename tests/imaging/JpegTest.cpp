#include "imaging/JpegEncoder.h"
#include "imaging/PictureDecoding.h"
#include "imaging/PictureHeader.h"
#include "imaging/TestImages.h"

#include <gtest/gtest.h>

using namespace tembra;

namespace {

const PictureMetadata described{QSize(5906, 2835), QStringLiteral("2026:11:21 10:15:22"),
                                QStringLiteral("Bildschirmfoto für alle")};

// The file with what it says of its orientation changed.
QByteArray turned(const QByteArray &file, char orientation) {
    const QByteArray exif = QByteArray("\xff\xe1\0\x22"
                                       "Exif\0\0MM\0*\0\0\0\b\0\1\1\x12\0\3\0\0\0\1\0",
                                       29) +
                            orientation + QByteArray(6, '\0');
    return file.first(2) + exif + file.sliced(2);
}

} // namespace

TEST(JpegTest, everyOrientationIsTurnedUprightAsQtTurnsIt) {
    const QByteArray file = writtenByQt(testImage({48, 32}, QImage::Format_RGB32), "jpg", 100);
    for (char orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray bytes = turned(file, orientation);
        EXPECT_EQ(readPictureHeader(bytes)->orientation, orientation);
        const auto image = decodePicture(bytes);
        ASSERT_TRUE(image);
        EXPECT_EQ(image->size(), readPictureHeader(bytes)->uprightSize());
        EXPECT_LE(difference(*image, readByQt(bytes)), 1) << int(orientation);
        EXPECT_EQ(decodePicture(bytes, 24)->size(), orientation < 5 ? QSize(24, 16) : QSize(16, 24));
    }
    for (const char wrong : {'\0', '\x9'})
        EXPECT_EQ(readPictureHeader(turned(file, wrong))->orientation, 1);
}

TEST(JpegTest, greyAndProgressivePicturesAreAsQtReadsThem) {
    const QImage image = testImage({61, 43}, QImage::Format_RGB32);
    for (const QByteArray &file : {writtenByQt(image.convertToFormat(QImage::Format_Grayscale8), "jpg"),
                                   writtenByQt(image, "jpg", 10)})
        EXPECT_LE(difference(*decodePicture(file), readByQt(file)), 1);
}

TEST(JpegTest, highQualityKeepsColouredTextCrisp) {
    QImage image(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            image.setPixel(x, y, x % 4 == 0 ? 0xffff'2020 : 0xff20'20ff);
    }
    EXPECT_LE(difference(readByQt(*encodeJpeg(image, 0.95, {})), image), 40);
}

TEST(JpegTest, tellsWhatItIsToldAndNothingElse) {
    QImage image = testImage({40, 30}, QImage::Format_RGB32);
    image.setText(QStringLiteral("Comment"), QStringLiteral("hidden"));
    const auto file = encodeJpeg(image, 0.95, described);
    ASSERT_TRUE(file);
    const auto header = readPictureHeader(*file);
    ASSERT_TRUE(header);
    // Whole dots an inch.
    EXPECT_EQ(header->metadata.dotsPerMeter, QSize(5906, 2835));
    EXPECT_EQ(header->metadata.creationTime, described.creationTime);
    EXPECT_EQ(header->metadata.software, described.software);
    EXPECT_EQ(header->orientation, 1);
    EXPECT_FALSE(file->contains("hidden"));
    EXPECT_NEAR(readByQt(*file).dotsPerMeterX(), 5906, 1);
    EXPECT_EQ(readPictureHeader(*encodeJpeg(image, 0.95, {}))->metadata, PictureMetadata());
}

TEST(JpegTest, transparentPixelsLieOnWhite) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(0x0000'0000);
    const QImage read = readByQt(*encodeJpeg(image, 0.95, {}));
    QImage white(16, 16, QImage::Format_RGB32);
    white.fill(Qt::white);
    EXPECT_LE(difference(read, white), 1);
}

TEST(JpegTest, nothingIsNoPicture) {
    EXPECT_FALSE(encodeJpeg({}, 0.95, {}));
}
