#include "imaging/PictureHeader.h"

#include "imaging/PictureLimits.h"
#include "imaging/TestImages.h"
#include "support/PngPicture.h"

#include <gtest/gtest.h>

using namespace tembra;
using namespace tembra::png;

TEST(PictureHeaderTest, identifiersNameTheTypes) {
    EXPECT_EQ(pictureTypeIdentifier(PictureType::png), u"public.png");
    EXPECT_EQ(pictureTypeOf(u"public.jpeg"), PictureType::jpeg);
    EXPECT_EQ(pictureTypeOf(u"public.heic"), std::nullopt);
}

TEST(PictureHeaderTest, tellsKindSizeAndMetadata) {
    const QByteArray chunks = chunk("tEXt", QByteArray("Software\0gnome-screenshot", 25)) +
                              chunk("tEXt", QByteArray("Comment\0hidden", 14)) +
                              chunk("iTXt", QByteArray("Creation Time\0\0\0de\0Zeit\0\xc3\xa4", 26)) +
                              chunk("pHYs", number(3780) + number(3779) + '\1');
    const auto png = readPictureHeader(Picture{.size = {30, 20}, .kind = Rgba, .chunks = chunks}.file());
    ASSERT_TRUE(png);
    EXPECT_EQ(*png,
              (PictureHeader{PictureType::png,
                             {30, 20},
                             1,
                             true,
                             {QSize(3780, 3779), QStringLiteral("ä"), QStringLiteral("gnome-screenshot")},
                             32}));
    const auto jpeg = readPictureHeader(writtenByQt(testImage({30, 20}, QImage::Format_RGB32), "jpg"));
    ASSERT_TRUE(jpeg);
    EXPECT_EQ(jpeg->type, PictureType::jpeg);
    EXPECT_EQ(jpeg->size, QSize(30, 20));
    EXPECT_EQ((PictureHeader{.size = {30, 20}, .orientation = 6}.uprightSize()), QSize(20, 30));
}

TEST(PictureHeaderTest, anAnimationIsNoSingleImage) {
    const auto isSingle = [](int frames) {
        const auto control = chunk("acTL", number(static_cast<quint32>(frames)) + number(0));
        return readPictureHeader(Picture{.size = {9, 9}, .chunks = control}.file())->isSingleImage;
    };
    EXPECT_TRUE(isSingle(1));
    EXPECT_FALSE(isSingle(2));
}

TEST(PictureHeaderTest, whatIsNeitherPngNorJpegHasNone) {
    const QImage image = testImage({20, 20}, QImage::Format_RGB32);
    const QByteArray wrongs[] = {{},
                                 "\x89PNG\r\n\x1a\n",
                                 "\xff\xd8\xff",
                                 writtenByQt(image, "bmp"),
                                 "<svg xmlns='http://www.w3.org/2000/svg'/>",
                                 Picture{{0, 5}}.head(),
                                 Picture{{5, -1}}.head(),
                                 Picture{.size = {5, 5}, .kind = Rgba, .depth = 4}.head(),
                                 Picture{.size = {5, 5}, .interlacing = 2}.head()};
    for (const QByteArray &bytes : wrongs)
        EXPECT_FALSE(readPictureHeader(bytes)) << bytes.left(9).toStdString();
}

TEST(PictureHeaderTest, anyBytesAreSafe) {
    const QImage image = testImage({20, 20}, QImage::Format_RGB32);
    QRandomGenerator random(5);
    for (const QByteArray &file :
         {writtenByQt(image, "jpg"),
          Picture{.size = {20, 20}, .chunks = chunk("eXIf", "MM\0*\0\0\0\b")}.file()}) {
        for (qsizetype length = 0; length < file.size(); ++length)
            (void)readPictureHeader(file.left(length));
        for (int round = 0; round < 2'000; ++round) {
            QByteArray changed = file;
            for (int change = 0; change < 3; ++change)
                changed[random.bounded(static_cast<int>(changed.size()))] =
                    static_cast<char>(random.generate());
            (void)readPictureHeader(changed);
        }
    }
}

TEST(PictureLimitsTest, whatCannotBeInTheFileOrInMemoryIsRefused) {
    const auto png = [](int width, int height, int bits) {
        return PictureHeader{.type = PictureType::png, .size = {width, height}, .bitsPerPixel = bits};
    };
    constexpr qsizetype megabytes = 1 << 20;
    EXPECT_TRUE(isDecodable(png(3840, 2160, 24), 30'000));
    EXPECT_TRUE(isDecodable(png(1, 1, 1), 60));
    EXPECT_TRUE(isDecodable(png(32'768, 100, 24), megabytes));
    EXPECT_FALSE(isDecodable(png(32'769, 100, 24), megabytes));
    EXPECT_FALSE(isDecodable(png(100, 32'769, 24), megabytes));
    EXPECT_FALSE(isDecodable(png(30'000, 30'000, 1), 100));
    EXPECT_FALSE(isDecodable(png(1000, 1000, 32), 3'000));
    EXPECT_TRUE(isDecodable(png(1000, 1000, 32), 4'000));
    EXPECT_FALSE(isDecodable({.type = PictureType::jpeg, .size = {30'000, 30'000}}, 10'000));
    EXPECT_TRUE(isDecodable({.type = PictureType::jpeg, .size = {3840, 2160}}, 60'000));
    EXPECT_FALSE(isDecodable({}, megabytes));
}
