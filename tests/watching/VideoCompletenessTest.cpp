#include "screenshots/VideoCompleteness.h"

#include "support/MemoryFile.h"

#include <QtEndian>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

QByteArray number(quint64 value, int bytes) {
    QByteArray whole(8, '\0');
    qToBigEndian(value, whole.data());
    return whole.last(bytes);
}

// A box of the ISO base media format, and one whose length takes 64 bits.
QByteArray box(const char *type, const QByteArray &content) {
    return number(8 + static_cast<quint64>(content.size()), 4) + type + content;
}
QByteArray largeBox(const char *type, const QByteArray &content) {
    return number(1, 4) + type + number(16 + static_cast<quint64>(content.size()), 8) + content;
}
// One that goes on to the end of the file.
QByteArray openBox(const char *type, const QByteArray &content) {
    return number(0, 4) + type + content;
}

// EBML elements: an id and a length that takes one byte, or eight.
QByteArray element(const char *id, const QByteArray &content) {
    return QByteArray::fromHex(id) + number(0x80 + static_cast<quint64>(content.size()), 1) + content;
}
QByteArray longElement(const char *id, const QByteArray &content) {
    return QByteArray::fromHex(id) + number(0x0100000000000000 + static_cast<quint64>(content.size()), 8) +
           content;
}
QByteArray endless(const char *id, const QByteArray &content) {
    return QByteArray::fromHex(id) + QByteArray::fromHex("01ffffffffffffff") + content;
}

constexpr auto ebml = "1a45dfa3";
constexpr auto segment = "18538067";

bool isComplete(const QByteArray &bytes, const char *extension, std::chrono::nanoseconds stillFor = 1s) {
    return VideoCompleteness::isCompleteVideo(MemoryFile(bytes), QString::fromUtf8(extension), stillFor);
}

const QByteArray start = box("ftyp", "isommp42");
const QByteArray movieIndex = box("moov", QByteArray(40, 'm'));
const QByteArray media(60, 'd');
const QByteArray header = element(ebml, "webm header");

} // namespace

TEST(VideoCompleteness, aRecordingMustHaveBeenStillForASecond) {
    const QByteArray mp4 = start + box("mdat", media) + movieIndex;
    const QByteArray webm = header + element(segment, media);
    for (const auto &[bytes, extension] :
         {std::pair{mp4, "mp4"}, {mp4, "mov"}, {mp4, "m4v"}, {webm, "webm"}}) {
        EXPECT_FALSE(isComplete(bytes, extension, -1s)) << extension;
        EXPECT_FALSE(isComplete(bytes, extension, 999ms)) << extension;
        EXPECT_TRUE(isComplete(bytes, extension, 1s)) << extension;
    }
}

TEST(VideoCompleteness, anMp4IsWholeWhenItsBoxesEndWithItAndItHasAnIndex) {
    const struct {
        const char *what;
        QByteArray bytes;
        bool expected;
    } cases[]{
        {"index last", start + box("free", "") + box("mdat", media) + movieIndex, true},
        {"index first", start + movieIndex + box("mdat", media), true},
        {"large media", start + movieIndex + largeBox("mdat", media), true},
        {"media up to the end", start + movieIndex + openBox("mdat", media), true},
        {"fragments", start + movieIndex + box("moof", "x") + box("mdat", media) + box("moof", "y"), true},
        {"no index yet", start + box("mdat", media), false},
        {"media of no length yet", start + openBox("mdat", media), false},
        {"an index inside of the media", start + box("mdat", movieIndex), false},
        {"large media cut in its header", start + movieIndex + largeBox("mdat", media).first(8), false},
        {"large media cut in its length", start + movieIndex + largeBox("mdat", media).first(15), false},
        {"a length below the header's", start + movieIndex + number(7, 4) + "mdat", false},
        {"a large length below the header's", start + movieIndex + number(1, 4) + "mdat" + number(8, 8),
         false},
        {"a length beyond everything", start + movieIndex + number(1, 4) + "mdat" + number(~quint64{0}, 8),
         false},
        {"trailing bytes", start + movieIndex + "abc", false},
        {"garbage", QByteArray(5000, 'x'), false},
        {"zeros", QByteArray(5000, '\0'), false},
        {"nothing", QByteArray(), false},
    };
    for (const auto &[what, bytes, expected] : cases)
        EXPECT_EQ(isComplete(bytes, "mp4", 1h), expected) << what;
}

TEST(VideoCompleteness, anMp4CutAnywhereIsNotWhole) {
    const QByteArray boxed = box("mdat", media);
    const QByteArray bytes = start + boxed + movieIndex;
    for (qsizetype left = 0; left < bytes.size(); ++left)
        EXPECT_FALSE(isComplete(bytes.first(left), "mov", 1h)) << left;
}

TEST(VideoCompleteness, aMatroskaFileIsWholeWhenItIsAsLongAsItSays) {
    const struct {
        const char *what;
        QByteArray bytes;
        bool young;
        bool old;
    } cases[]{
        {"whole", header + element(segment, media), true, true},
        {"whole with a long length", header + longElement(segment, media), true, true},
        {"something behind", header + element(segment, media) + "tags", true, true},
        {"cut", header + element(segment, media).chopped(1), false, false},
        {"cut in the length", header + longElement(segment, media).first(9), false, false},
        {"cut in the id", header + element(segment, media).first(3), false, false},
        {"header only", header, false, false},
        {"header cut", header.chopped(1), false, false},
        {"unknown length", header + endless(segment, media), false, true},
        {"unknown length in one byte", header + QByteArray::fromHex("18538067ff") + media, false, true},
        {"a header of unknown length", endless(ebml, "webm") + element(segment, media), false, false},
        {"a header beyond everything",
         QByteArray::fromHex(ebml) + QByteArray::fromHex("01fffffffffffffe") + element(segment, media), false,
         false},
        {"no length at all", header + QByteArray::fromHex("1853806700") + media, false, false},
        {"no segment", header + element("1f43b675", media), false, false},
        {"an MP4", start + box("mdat", media) + movieIndex, false, false},
        {"zeros", QByteArray(5000, '\0'), false, false},
        {"nothing", QByteArray(), false, false},
    };
    for (const auto &[what, bytes, young, old] : cases) {
        for (const char *extension : {"mkv", "webm"}) {
            EXPECT_EQ(isComplete(bytes, extension, 9999ms), young) << what;
            EXPECT_EQ(isComplete(bytes, extension, 10s), old) << what;
        }
    }
}
