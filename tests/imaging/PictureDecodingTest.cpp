#include "imaging/PictureDecoding.h"

#include "imaging/TestImages.h"
#include "support/PngPicture.h"

#include <QColorSpace>

#include <gtest/gtest.h>

using namespace tembra;
using namespace tembra::png;

namespace {

// Rows without filters, for the kinds that are not common.
QByteArray plainFile(QSize size, char depth, Kind kind, const QByteArray &row,
                     const QByteArray &chunks = {}) {
    Picture picture{.size = size, .kind = kind, .depth = depth};
    QByteArray rows;
    for (int y = 0; y < size.height(); ++y)
        rows += '\0' + row;
    return picture.head() + chunks + chunk("IDAT", qCompress(rows).mid(4)) + chunk("IEND", {});
}

QByteArray gammaOf(quint32 value) {
    return chunk("gAMA", number(value));
}

const QByteArray chromaticities =
    chunk("cHRM", number(31'270) + number(32'900) + number(64'000) + number(33'000) + number(30'000) +
                      number(60'000) + number(15'000) + number(6'000));

} // namespace

TEST(PictureDecodingTest, everyCommonKindOfPngIsAsQtReadsIt) {
    const QByteArray alphas = chunk("tRNS", QByteArray::fromHex("40ff00"));
    for (const QSize size : {QSize(1, 1), QSize(1, 7), QSize(13, 1), QSize(301, 97)}) {
        for (const Picture &picture :
             {Picture{size, Grey}, Picture{size, Rgb}, Picture{size, Palette},
              Picture{.size = size, .kind = Palette, .chunks = alphas}, Picture{size, GreyAlpha},
              Picture{size, Rgba}, Picture{.size = size, .kind = GreyAlpha, .isOpaque = true},
              Picture{.size = size, .kind = Rgba, .isOpaque = true}}) {
            const auto image = decodePicture(picture.file());
            ASSERT_TRUE(image);
            EXPECT_EQ(*image, readByQt(picture.file()).convertToFormat(image->format())) << picture.kind;
            EXPECT_TRUE(!picture.isOpaque || image->format() == QImage::Format_RGB32);
            EXPECT_EQ(image->devicePixelRatio(), 1);
            EXPECT_TRUE(image->textKeys().isEmpty());
        }
    }
}

TEST(PictureDecodingTest, everyOtherKindOfPngIsReadToo) {
    const struct {
        const char *what;
        QByteArray file;
        QRgb first;
        QRgb second;
    } cases[] = {
        {"black and white", plainFile({2, 3}, 1, Grey, "\x40"), 0xff00'0000, 0xffff'ffff},
        {"four bits of grey", plainFile({2, 3}, 4, Grey, "\x3f"), 0xff33'3333, 0xffff'ffff},
        {"sixteen bits of grey", plainFile({2, 3}, 16, Grey, QByteArray("\x80\x80\x00\x00", 4)), 0xff80'8080,
         0xff00'0000},
        {"two bits of a palette",
         plainFile({2, 3}, 2, Palette, "\x60", chunk("PLTE", QByteArray::fromHex("000000112233445566"))),
         0xff11'2233, 0xff44'5566},
        {"sixteen bits of colour",
         plainFile({2, 3}, 16, Rgb, QByteArray::fromHex("010102020303fefefdfdfcfc")), 0xff01'0203,
         0xfffe'fdfc},
        {"one transparent colour",
         plainFile({2, 3}, 8, Rgb, QByteArray::fromHex("010203040506"),
                   chunk("tRNS", QByteArray::fromHex("000100020003"))),
         0x0001'0203, 0xff04'0506},
    };
    for (const auto &[what, file, first, second] : cases) {
        const auto image = decodePicture(file);
        ASSERT_TRUE(image) << what;
        EXPECT_EQ(image->pixel(0, 2), first) << what;
        EXPECT_EQ(image->pixel(1, 2), second) << what;
    }
}

TEST(PictureDecodingTest, coloursOfSrgbStayAsTheyAreHoweverTheyAreDescribed) {
    const QByteArray row = QByteArray::fromHex("102030c08040");
    const QByteArray deepRow = QByteArray::fromHex("101020203030c0c080804040");
    for (const QByteArray &chunks :
         {QByteArray(), gammaOf(45'455), gammaOf(45'470), gammaOf(45'455) + chromaticities, chromaticities,
          chunk("sRGB", QByteArray(1, '\0')),
          chunk("sRGB", QByteArray(1, '\0')) + gammaOf(45'455) + chromaticities}) {
        for (const auto &file :
             {plainFile({2, 1}, 8, Rgb, row, chunks), plainFile({2, 1}, 16, Rgb, deepRow, chunks)}) {
            const auto image = decodePicture(file);
            ASSERT_TRUE(image);
            EXPECT_EQ(image->pixel(0, 0), 0xff10'2030U);
            EXPECT_EQ(image->pixel(1, 0), 0xffc0'8040U);
            EXPECT_FALSE(image->colorSpace().isValid());
        }
    }
}

TEST(PictureDecodingTest, otherColoursBecomeThoseOfSrgb) {
    EXPECT_EQ(
        qRed(decodePicture(plainFile({1, 1}, 8, Rgb, QByteArray(3, '\x80'), gammaOf(100'000)))->pixel(0, 0)),
        188)
        << "half as bright in light";
    for (const char *format : {"png", "jpg"}) {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(QColor(200, 100, 50));
        image.setColorSpace(QColorSpace::DisplayP3);
        const auto decoded = decodePicture(writtenByQt(image, format, 100));
        ASSERT_TRUE(decoded);
        const QColor colour = decoded->pixelColor(3, 3);
        const QColor expected = image.convertedToColorSpace(QColorSpace::SRgb).pixelColor(3, 3);
        EXPECT_NEAR(colour.red(), expected.red(), 2) << format;
        EXPECT_NEAR(colour.blue(), expected.blue(), 2) << format;
        EXPECT_GT(colour.red(), 205) << format;
    }
}

TEST(PictureDecodingTest, aReducedPictureIsTheAverageOfTheWhole) {
    for (const char *format : {"png", "jpg"}) {
        // A JPEG's pixels are averaged as waves, which noise tells from averages.
        QImage image = testImage({400, 300}, QImage::Format_ARGB32);
        if (format == QByteArrayView("jpg"))
            image = testImage({10, 8}, QImage::Format_RGB32)
                        .scaled(400, 300, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QByteArray file = writtenByQt(image, format, 95);
        const auto whole = decodePicture(file);
        for (const auto &[side, size] : std::initializer_list<std::pair<int, QSize>>{{200, {200, 150}},
                                                                                     {93, {93, 70}},
                                                                                     {1, {1, 1}},
                                                                                     {399, {399, 299}},
                                                                                     {400, {400, 300}},
                                                                                     {500, {400, 300}}}) {
            const auto reduced = decodePicture(file, side);
            ASSERT_TRUE(reduced) << format;
            EXPECT_EQ(reduced->size(), size) << format;
            if (side != 200)
                continue;
            const auto premultiplied = QImage::Format_ARGB32_Premultiplied;
            const QImage expected = whole->convertToFormat(premultiplied)
                                        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LE(difference(reduced->convertToFormat(premultiplied), expected), 4) << format;
        }
    }
    EXPECT_FALSE(decodePicture(Picture{{9, 9}}.file(), 0));
}

TEST(PictureDecodingTest, whiteStaysWhiteHoweverItIsReduced) {
    // Up to 257 bytes are summed in sixteen bits.
    for (const int height : {2, 3, 256, 257, 258, 513, 771, 1'030}) {
        for (const auto format : {QImage::Format_Grayscale8, QImage::Format_RGB32}) {
            QImage image(height, height, format);
            image.fill(Qt::white);
            for (const int side : {1, height / 2, height - 1}) {
                const auto reduced = decodePicture(writtenByQt(image, "png", -1), side);
                ASSERT_TRUE(reduced);
                QImage expected(side, side, QImage::Format_RGB32);
                expected.fill(Qt::white);
                EXPECT_EQ(*reduced, expected) << height << " to " << side;
            }
        }
    }
}

TEST(PictureDecodingTest, anOrientationOfPngIsHonoured) {
    const auto exif = [](char orientation) {
        return chunk("eXIf", QByteArray("MM\0*\0\0\0\b\0\1\1\x12\0\3\0\0\0\1\0", 19) + orientation +
                                 QByteArray(6, '\0'));
    };
    const Picture plain{{30, 20}};
    const auto stored = decodePicture(plain.file());
    const auto turned = decodePicture(Picture{.size = {30, 20}, .chunks = exif(6)}.file());
    ASSERT_TRUE(stored && turned);
    EXPECT_EQ(*turned, stored->transformed(QTransform().rotate(90)));
}

TEST(PictureDecodingTest, noPartOfAPictureIsTakenForIt) {
    const QImage image = testImage({60, 40}, QImage::Format_RGB32);
    const QByteArray files[] = {
        Picture{{24, 12}}.file(),
        plainFile({24, 12}, 16, Grey, QByteArray(48, '\x33')),
        writtenByQt(image, "png"),
        writtenByQt(image, "jpg"),
    };
    for (const QByteArray &file : files) {
        ASSERT_TRUE(decodePicture(file));
        for (qsizetype length = 0; length < file.size(); ++length)
            EXPECT_FALSE(decodePicture(file.left(length))) << length << " of " << file.size();
    }
    // Rows that are missing from the pixels of a file that is whole otherwise.
    const QByteArray whole = plainFile({24, 12}, 16, Grey, QByteArray(48, '\x33'));
    const QByteArray shorter = plainFile({24, 11}, 16, Grey, QByteArray(48, '\x33'));
    EXPECT_FALSE(decodePicture(whole.first(33) + shorter.sliced(33)));
    EXPECT_FALSE(decodePicture(Picture{.size = {24, 12}, .missingBytes = 1}.file()));
}

TEST(PictureDecodingTest, whatPromisesTooMuchIsRefusedBeforeItTakesMemory) {
    const QByteArray pixels = Picture{{10, 10}}.file().sliced(33);
    for (const QSize size : {QSize(30'000, 30'000), QSize(65'535, 65'535), QSize(0x7fff'ffff, 1)}) {
        for (const char depth : {'\x8', '\x10'})
            EXPECT_FALSE(decodePicture(Picture{.size = size, .depth = depth}.head() + pixels));
    }
    QByteArray jpeg = writtenByQt(testImage({16, 16}, QImage::Format_RGB32), "jpg");
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    ASSERT_GT(frame, 0);
    jpeg.replace(frame + 5, 4, QByteArray(4, '\x7f'));
    EXPECT_FALSE(decodePicture(jpeg));
}

TEST(PictureDecodingTest, anyBytesAreSafe) {
    QRandomGenerator random(8);
    const auto changed = [&](QByteArray bytes) {
        for (int change = 0; change < 3; ++change)
            bytes[random.bounded(static_cast<int>(bytes.size()))] = static_cast<char>(random.generate());
        return bytes;
    };
    const QByteArray jpeg = writtenByQt(testImage({40, 30}, QImage::Format_RGB32), "jpg");
    const QByteArray colours = QByteArray::fromHex("000000112233445566");
    for (int round = 0; round < 200; ++round) {
        const QByteArray changedJpeg = changed(jpeg);
        (void)decodePicture(changedJpeg);
        (void)decodePicture(changedJpeg, 10);
        for (const Kind kind : {Grey, Rgb, Palette, Rgba}) {
            const Picture picture{{16, 9}, kind};
            const QByteArray png = picture.head() + chunk("PLTE", changed(colours)) +
                                   chunk("IDAT", changed(qCompress(picture.rows()).mid(4))) +
                                   chunk("IEND", {});
            (void)decodePicture(png);
            (void)decodePicture(png, 5);
        }
    }
}
