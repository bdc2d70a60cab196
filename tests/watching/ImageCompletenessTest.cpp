#include "screenshots/ImageCompleteness.h"

#include "support/MemoryFile.h"
#include "support/Pictures.h"

#include <QImageReader>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// Whether the bytes are taken for a whole picture, first just after they were written, then later.
std::pair<bool, bool> isComplete(const QByteArray &bytes, const char *extension) {
    const MemoryFile file(bytes);
    const QString kind = QString::fromUtf8(extension);
    return {ImageCompleteness::isCompleteImage(file, kind, true),
            ImageCompleteness::isCompleteImage(file, kind, false)};
}

constexpr std::pair whole{true, true};
constexpr std::pair unfinished{false, false};

QByteArray box(const char *type, const QByteArray &content = {}) {
    QByteArray box(4, '\0');
    box[3] = static_cast<char>(8 + content.size());
    return box + type + content;
}

const QByteArray heic = box("ftyp", "heic\0\0\0\0") + box("meta", "1234") + box("mdat", "12345678");

// A picture whose directory stands ahead of its data, as some writers lay it out.
QByteArray tiffWithDirectoryFirst() {
    const auto entry = [](int tag, int type, int value) {
        QByteArray bytes = QByteArray::fromHex("000000000100000000000000");
        bytes[0] = static_cast<char>(tag & 0xff);
        bytes[1] = static_cast<char>(tag >> 8);
        bytes[2] = static_cast<char>(type);
        bytes[8] = static_cast<char>(value);
        return bytes;
    };
    constexpr int number = 3;
    const QList<QByteArray> entries{entry(256, number, 4), entry(257, number, 4), entry(258, number, 8),
                                    entry(259, number, 1), entry(262, number, 1), entry(273, number, 122),
                                    entry(277, number, 1), entry(278, number, 4), entry(279, number, 16)};
    return QByteArray("II*\0\x08\0\0\0", 8) + QByteArray("\x09\0", 2) + entries.join() + QByteArray(4, '\0') +
           QByteArray(16, 'x');
}

} // namespace

TEST(ImageCompleteness, aPictureAsItsProgramWroteItIsWhole) {
    for (const char *format : {"png", "jpg", "jpeg", "tiff"})
        EXPECT_EQ(isComplete(pictureBytes(format), format), whole) << format;
    EXPECT_EQ(isComplete(heic, "heic"), whole);
    EXPECT_EQ(isComplete(tiffWithDirectoryFirst(), "tiff"), whole);
}

TEST(ImageCompleteness, aPictureCutAnywhereIsNot) {
    const std::pair<const char *, QByteArray> pictures[]{{"png", pictureBytes("png")},
                                                         {"jpg", pictureBytes("jpg")},
                                                         {"tiff", pictureBytes("tiff")},
                                                         {"heic", heic},
                                                         {"tiff", tiffWithDirectoryFirst()}};
    for (const auto &[extension, bytes] : pictures) {
        for (const qsizetype left :
             {qsizetype{0}, qsizetype{1}, qsizetype{7}, qsizetype{12}, bytes.size() / 4, bytes.size() / 2,
              bytes.size() - 5, bytes.size() - 2, bytes.size() - 1})
            EXPECT_EQ(isComplete(bytes.first(left), extension), unfinished)
                << extension << " " << left << " of " << bytes.size();
    }
}

TEST(ImageCompleteness, somethingBehindThePictureDoesNotKeepItHidden) {
    // Phones and image editors leave notes there.
    for (const QByteArray &more : {QByteArray("\0\0", 2), QByteArray("a note"), QByteArray(100'000, 'x')}) {
        for (const char *format : {"png", "jpg", "tiff"})
            EXPECT_EQ(isComplete(pictureBytes(format) + more, format), whole) << format << more.size();
    }
}

TEST(ImageCompleteness, anEndInsideOfAJpegIsNotItsOwn) {
    // A thumbnail in the header is a whole JPEG itself.
    QByteArray bytes = pictureBytes("jpg");
    const QByteArray small = pictureBytes("jpg", {4, 4});
    QByteArray segment = QByteArray("\xff\xe1\0\0", 4) + small;
    segment[2] = static_cast<char>((small.size() + 2) >> 8);
    segment[3] = static_cast<char>((small.size() + 2) & 0xff);
    bytes.insert(2, segment);
    EXPECT_EQ(isComplete(bytes, "jpg"), whole);
    const qsizetype endOfThumbnail = 2 + segment.size();
    EXPECT_EQ(isComplete(bytes.first(endOfThumbnail), "jpg").second, false);
    EXPECT_EQ(isComplete(bytes.first(endOfThumbnail + 200), "jpg"), unfinished);
    EXPECT_EQ(isComplete(bytes + "a note", "jpg"), whole);
}

TEST(ImageCompleteness, whatIsNoPictureIsNeverOne) {
    for (const QByteArray &bytes :
         {QByteArray("x"), QByteArray(10'000, '\0'), QByteArray(10'000, '\xff'),
          QByteArray("\x89PNG\r\n\x1a\n"), QByteArray("\xff\xd8\xff\xff\xd9"),
          QByteArray("II*\0\xff\xff\xff\xff", 8), QByteArray("MM\0*\0\0\0\x08", 8)}) {
        for (const char *extension : {"png", "jpg", "jpeg", "tiff", "heic"})
            EXPECT_EQ(isComplete(bytes, extension).second, false)
                << extension << bytes.left(8).toHex().data();
    }
}

TEST(ImageCompleteness, aPictureWithoutEndIsGivenUp) {
    class CountedFile final : public OpenFile {
    public:
        explicit CountedFile(QByteArray bytes) : m_file(std::move(bytes)) {}
        [[nodiscard]] FileFacts facts() const override { return m_file.facts(); }
        [[nodiscard]] std::uint64_t size() const override { return m_file.size(); }
        [[nodiscard]] std::optional<QByteArray> attribute(const char *) const override { return {}; }
        [[nodiscard]] std::size_t read(std::uint64_t offset, std::span<char> into) const override {
            ++reads;
            return m_file.read(offset, into);
        }
        mutable int reads = 0;

    private:
        const MemoryFile m_file;
    };
    constexpr qsizetype large = 4'000'000;
    const QByteArray png = pictureBytes("png");
    const std::pair<const char *, QByteArray> files[]{
        {"jpg", "\xff\xd8" + QByteArray(large, '\xff')},
        {"png", png.first(33) + QByteArray(large, '\0')},
    };
    for (const auto &[extension, bytes] : files) {
        const CountedFile file(bytes);
        EXPECT_FALSE(ImageCompleteness::isCompleteImage(file, QString::fromUtf8(extension), false));
        EXPECT_LT(file.reads, 200'000) << extension;
    }
}

TEST(ImageCompleteness, aPngWhosePixelsAreMissingWaitsWhileItIsYoung) {
    QByteArray bytes = pictureBytes("png");
    bytes.remove(bytes.size() / 2, 40);
    EXPECT_EQ(isComplete(bytes, "png").first, false);
}

TEST(ImageCompleteness, aPictureTooLargeToDecodeIsJudgedByItsStructure) {
    const int before = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(1);
    const QByteArray large = pictureBytes("png", {700, 700});
    const auto uncut = isComplete(large, "png");
    const auto cut = isComplete(large.first(large.size() - 1), "png");
    QImageReader::setAllocationLimit(before);
    EXPECT_EQ(uncut, whole);
    EXPECT_EQ(cut, unfinished);
}
