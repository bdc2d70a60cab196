#include "screenshots/ImageCompleteness.h"

#include "screenshots/ContainerLength.h"
#include "screenshots/OpenFileDevice.h"

#include <QImageReader>
#include <QtEndian>

#include <array>
#include <string_view>

namespace tembra {

namespace {

using namespace std::string_view_literals;

// Larger pictures are not decoded to see whether they are whole: that would take longer than their writing.
constexpr qint64 mostDecodedPixels = 100'000'000;

template <std::size_t size>
std::string_view readAt(const OpenFile &file, std::uint64_t offset, std::array<char, size> &buffer) {
    return {buffer.data(), file.read(offset, buffer)};
}

bool isWholePng(const OpenFile &file, std::uint64_t size) {
    constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
    constexpr auto end = "\0\0\0\0IEND\xae\x42\x60\x82"sv;
    std::array<char, signature.size()> head{};
    std::array<char, end.size()> tail{};
    return size > signature.size() + end.size() && readAt(file, 0, head) == signature &&
           readAt(file, size - end.size(), tail) == end;
}

bool isWholeJpeg(const OpenFile &file, std::uint64_t size) {
    std::array<char, 3> head{};
    std::array<char, 2> tail{};
    return size > 4 && readAt(file, 0, head) == "\xff\xd8\xff"sv &&
           readAt(file, size - 2, tail) == "\xff\xd9"sv;
}

// The directory of the first picture, which writers put last, lies within the file.
bool isWholeTiff(const OpenFile &file, std::uint64_t size) {
    std::array<char, 8> head{};
    if (readAt(file, 0, head).size() < head.size())
        return false;
    const std::string_view order(head.data(), 4);
    std::uint64_t directory = 0;
    if (order == "II*\0"sv)
        directory = qFromLittleEndian<quint32>(head.data() + 4);
    else if (order == "MM\0*"sv)
        directory = qFromBigEndian<quint32>(head.data() + 4);
    std::array<char, 2> count{};
    return directory >= head.size() && directory < size &&
           readAt(file, directory, count).size() == count.size();
}

bool looksWhole(const OpenFile &file, std::uint64_t size, QStringView extension) {
    if (extension == u"png")
        return isWholePng(file, size);
    if (extension == u"jpg" || extension == u"jpeg")
        return isWholeJpeg(file, size);
    if (extension == u"tiff")
        return isWholeTiff(file, size);
    return isWholeIsoMedia(file, size, "meta");
}

// True also of kinds that no reader is installed for: there is nothing better to go by than the file's
// structure.
bool decodes(const OpenFile &file, std::uint64_t size, QStringView extension) {
    OpenFileDevice device(file, size);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return extension == u"heic" || extension == u"tiff";
    const QSize pixels = reader.size();
    if (qint64{pixels.width()} * pixels.height() > mostDecodedPixels)
        return true;
    reader.setScaledSize(QSize(1, 1));
    return !reader.read().isNull();
}

} // namespace

bool ImageCompleteness::isCompleteImage(const OpenFile &file, QStringView extension, bool wasJustWritten) {
    const std::uint64_t size = file.facts().size;
    if (size == 0)
        return false;
    const bool isWhole = looksWhole(file, size, extension);
    if (wasJustWritten)
        return isWhole && decodes(file, size, extension);
    if (isWhole)
        return true;
    // Some programs write something behind the picture's end. What is cut off does not look like that.
    return (extension == u"png" || extension == u"tiff") && decodes(file, size, extension);
}

} // namespace tembra
