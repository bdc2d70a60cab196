#include "platform/linux/PngThumbnailReader.h"

#include "platform/linux/ThumbnailDecoder.h"
#include "support/PngPicture.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace tembra;
using namespace tembra::png;

namespace {

class PngThumbnailReaderTest : public testing::Test {
protected:
    std::optional<QImage> read(const QByteArray &bytes, int side) {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return m_reader.read(m_path, side);
    }

    // What is in the file now, beside what Qt makes of it.
    void expectAsQtReadsIt(const QImage &image, int side, const std::string &what) const {
        const auto picture = decodeReduced(m_path, side);
        ASSERT_TRUE(picture && *picture) << what;
        ASSERT_EQ(image.size(), (*picture)->image.size()) << what;
        const QImage ours = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const QImage theirs = (*picture)->image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        int largest = 0;
        double sum = 0;
        for (int y = 0; y < ours.height(); ++y) {
            for (int i = 0; i < 4 * ours.width(); ++i) {
                const int difference = std::abs(ours.constScanLine(y)[i] - theirs.constScanLine(y)[i]);
                largest = std::max(largest, difference);
                sum += difference;
            }
        }
        EXPECT_LE(largest, 3) << what;
        EXPECT_LT(sum / (4 * ours.width() * ours.height()), 1) << what;
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("a.png"));
    PngThumbnailReader m_reader;
};

} // namespace

TEST_F(PngThumbnailReaderTest, everyCommonKindLooksAsQtReadsIt) {
    const QByteArray alphas = chunk("tRNS", QByteArray::fromHex("40ff00"));
    const QByteArray isSrgb =
        chunk("sRGB", QByteArray(1, '\1')) + chunk("gAMA", QByteArray::fromHex("0000b18f"));
    const struct {
        QSize size;
        int side;
    } sizes[] = {{{320, 200}, 128}, {{301, 97}, 64}, {{1000, 3}, 100},
                 {{3, 1000}, 2},    {{257, 1}, 128}, {{2, 2}, 1}};
    for (const auto &[size, side] : sizes) {
        const Picture pictures[] = {{size, Grey},
                                    {size, Rgb},
                                    {.size = size, .kind = Rgb, .chunks = isSrgb},
                                    {size, Palette},
                                    {.size = size, .kind = Palette, .chunks = alphas},
                                    {size, GreyAlpha},
                                    {size, Rgba},
                                    {.size = size, .kind = Rgba, .isOpaque = true}};
        for (const Picture &picture : pictures) {
            const std::string what = std::to_string(size.width()) + "×" + std::to_string(size.height()) +
                                     " of kind " + std::to_string(picture.kind);
            const auto image = read(picture.file(), side);
            ASSERT_TRUE(image) << what;
            expectAsQtReadsIt(*image, side, what);
            EXPECT_TRUE(!picture.isOpaque || !image->hasAlphaChannel()) << what;
        }
    }
}

TEST_F(PngThumbnailReaderTest, whatIsUncommonOrDamagedIsLeftToOthers) {
    constexpr QSize size(90, 60);
    const Picture good{size};
    ASSERT_TRUE(read(good.file(), 20));
    QByteArray badChecksum = good.file();
    badChecksum[80] = static_cast<char>(badChecksum[80] + 1);
    QByteArray badSum = qCompress(good.rows()).mid(4);
    badSum.back() = static_cast<char>(badSum.back() + 1);
    const struct {
        const char *what;
        QByteArray file;
    } cases[] = {
        {"less than twice as large", Picture{{39, 10}}.file()},
        {"a single pixel", Picture{{1, 1}}.file()},
        {"interlaced", Picture{.size = size, .interlacing = 1}.file()},
        {"sixteen bits", Picture{.size = size, .depth = 16}.file()},
        {"no such kind", Picture{size, static_cast<Kind>(5)}.file()},
        {"a gamma", Picture{.size = size, .chunks = chunk("gAMA", number(50'000))}.file()},
        {"a colour profile", Picture{.size = size, .chunks = chunk("iCCP", QByteArray("p\0\0x", 4))}.file()},
        {"a transparent colour", Picture{.size = size, .chunks = chunk("tRNS", QByteArray(6, '\0'))}.file()},
        {"an animation", Picture{.size = size, .chunks = chunk("acTL", QByteArray(8, '\1'))}.file()},
        {"an orientation", Picture{.size = size, .chunks = chunk("eXIf", "MM")}.file()},
        {"a part that must be understood", Picture{.size = size, .chunks = chunk("ABCD", {})}.file()},
        {"a part beyond the file", Picture{.size = size, .chunks = number(0xffff'fff0) + "tEXt"}.file()},
        {"a colour that is not in the palette",
         Picture{.size = size, .kind = Palette, .paletteSize = 6}.file()},
        {"no palette", Picture{.size = size, .kind = Palette, .colours = {}}.file()},
        {"more transparency than palette",
         Picture{.size = size, .kind = Palette, .chunks = chunk("tRNS", QByteArray(6, '\0'))}.file()},
        {"no such filter", Picture{.size = size, .badFilter = 40}.file()},
        {"too few pixels", Picture{.size = size, .missingBytes = 1}.file()},
        {"too many pixels", Picture{size}.head() + Picture{{90, 61}}.file().mid(33)},
        {"immense", Picture{{60'000, 60'000}}.head() + good.file().mid(33)},
        {"no size", Picture{{0, 60}}.head() + good.file().mid(33)},
        {"a wrong checksum", badChecksum},
        {"a wrong sum of the pixels", good.head() + chunk("IDAT", badSum) + chunk("IEND", {})},
        {"no pixels", good.head() + chunk("IEND", {})},
    };
    for (const auto &test : cases)
        EXPECT_FALSE(read(test.file, 20)) << test.what;
    ASSERT_TRUE(QFile::remove(m_path));
    ASSERT_EQ(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    EXPECT_FALSE(m_reader.read(m_path, 20)) << "a pipe";
}

TEST_F(PngThumbnailReaderTest, noPartOfAFileAndNoChangedByteIsTakenForAPicture) {
    for (const Kind kind : {Rgb, Palette}) {
        const QByteArray file = Picture{{24, 12}, kind}.file();
        ASSERT_TRUE(read(file, 8));
        for (qsizetype length = 0; length < file.size(); ++length)
            EXPECT_FALSE(read(file.left(length), 8)) << length;
        for (qsizetype i = 0; i < file.size(); ++i) {
            QByteArray changed = file;
            changed[i] = static_cast<char>(changed[i] ^ 0x11);
            EXPECT_FALSE(read(changed, 8)) << i;
        }
    }
}

TEST_F(PngThumbnailReaderTest, itsMemoryIsTakenAgainAfterItWasGivenBack) {
    const QByteArray file = Picture{{90, 60}}.file();
    const auto first = read(file, 20);
    m_reader.release();
    EXPECT_EQ(first, read(file, 20));
}
