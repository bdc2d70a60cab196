#include "platform/linux/PngThumbnailReader.h"

#include "platform/linux/ThumbnailDecoder.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <libdeflate.h>
#include <sys/stat.h>

using namespace tembra;

namespace {

enum Kind : char { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

QByteArray number(quint32 value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &data) {
    const QByteArray checked = type + data;
    return number(static_cast<quint32>(data.size())) + checked +
           number(libdeflate_crc32(0, checked.constData(), static_cast<std::size_t>(checked.size())));
}

// Predicts a byte as each of the five filters says.
int prediction(int filter, int left, int up, int corner) {
    const int sum = left + up - corner;
    const int toLeft = std::abs(sum - left);
    const int toUp = std::abs(sum - up);
    const int toCorner = std::abs(sum - corner);
    const int nearest = toLeft <= toUp && toLeft <= toCorner ? left : toUp <= toCorner ? up : corner;
    return std::array{0, left, up, (left + up) / 2, nearest}[static_cast<std::size_t>(filter)];
}

// A PNG file whose parts can be made wrong.
struct Picture {
    QSize size;
    Kind kind = Rgb;
    bool isOpaque = false;
    char depth = 8;
    char interlacing = 0;
    // Between the head and the pixels.
    QByteArray chunks = {};
    QByteArray colours = QByteArray::fromHex("000000ff0000008000203040ffffff");
    int paletteSize = 5;
    int badFilter = -1;
    qsizetype missingBytes = 0;

    [[nodiscard]] int channels() const {
        return kind == Rgba ? 4 : kind == Rgb ? 3 : kind == GreyAlpha ? 2 : 1;
    }

    // Flat areas, a few edges and some noise; every filter in turn.
    [[nodiscard]] QByteArray rows() const {
        QRandomGenerator random(7);
        const qsizetype width = qsizetype{size.width()} * channels();
        QByteArray above(width, '\0');
        QByteArray rows;
        for (int y = 0; y < size.height(); ++y) {
            const int filter = y % 5;
            QByteArray row(width, '\0');
            rows += static_cast<char>(y == badFilter ? 5 : filter);
            for (qsizetype i = 0; i < width; ++i) {
                const qsizetype x = i / channels();
                const bool isAlpha = (kind == Rgba || kind == GreyAlpha) && i % channels() == channels() - 1;
                const bool isNoisy = x > size.width() / 2 && y > size.height() / 3;
                const int value =
                    isNoisy ? static_cast<int>(random.bounded(256)) : (x / 9 * 40 + y / 30 * 90) % 256;
                row[i] = static_cast<char>(kind == Palette       ? value % paletteSize
                                           : isAlpha && isOpaque ? 255
                                                                 : value);
                const auto at = [&](const QByteArray &bytes, qsizetype index) {
                    return index < 0 ? 0 : static_cast<unsigned char>(bytes[index]);
                };
                const qsizetype before = i - channels();
                rows += static_cast<char>(
                    row[i] - prediction(filter, at(row, before), at(above, i), at(above, before)));
            }
            above = row;
        }
        return rows;
    }

    [[nodiscard]] QByteArray head() const {
        return QByteArray::fromHex("89504e470d0a1a0a") +
               chunk("IHDR", number(static_cast<quint32>(size.width())) +
                                 number(static_cast<quint32>(size.height())) + QByteArray(1, depth) +
                                 static_cast<char>(kind) + QByteArray(2, '\0') + interlacing);
    }

    [[nodiscard]] QByteArray file() const {
        QByteArray bytes = head();
        if (kind == Palette)
            bytes += chunk("PLTE", colours);
        bytes += chunks;
        QByteArray pixels = rows();
        pixels.chop(missingBytes);
        pixels = qCompress(pixels).mid(4);
        for (qsizetype piece = 0; piece < pixels.size(); piece += 100)
            bytes += chunk("IDAT", pixels.mid(piece, 100));
        return bytes + chunk("tEXt", QByteArray("Title\0x", 7)) + chunk("IEND", {});
    }
};

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
