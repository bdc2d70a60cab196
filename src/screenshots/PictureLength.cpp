#include "screenshots/PictureLength.h"

#include <QtEndian>

#include <array>
#include <optional>
#include <string_view>

namespace tembra {

namespace {

using namespace std::string_view_literals;

// More chunks or markers than any writer makes: each costs a read.
constexpr int mostParts = 100'000;

template <std::size_t size>
std::string_view readAt(const OpenFile &file, std::uint64_t offset, std::array<char, size> &buffer) {
    return {buffer.data(), file.read(offset, buffer)};
}

// A PNG file is a row of chunks: length, type, data, checksum.
bool hasPngEnd(const OpenFile &file, std::uint64_t size, std::uint64_t offset) {
    constexpr std::uint64_t chunkOverhead = 12;
    std::array<char, 8> header{};
    for (int chunk = 0; chunk < mostParts && offset + chunkOverhead <= size; ++chunk) {
        if (readAt(file, offset, header).size() < header.size())
            return false;
        const std::uint64_t length = qFromBigEndian<quint32>(header.data());
        if (std::string_view(header.data() + 4, 4) == "IEND"sv)
            return length == 0;
        offset += chunkOverhead + length;
    }
    return false;
}

// Where the compressed data of a JPEG scan ends: at a marker that is no restart. A byte of 0xff in the data
// itself is followed by a zero (ITU-T T.81, B.1.1.5).
std::optional<std::uint64_t> endOfScan(const OpenFile &file, std::uint64_t offset) {
    std::array<char, 16'384> block{};
    for (;;) {
        const std::string_view data = readAt(file, offset, block);
        if (data.size() < 2)
            return std::nullopt;
        for (auto at = data.find('\xff'); at < data.size() - 1; at = data.find('\xff', at + 1)) {
            const auto next = static_cast<unsigned char>(data[at + 1]);
            const bool isRestart = next >= 0xd0 && next <= 0xd7;
            if (next != 0 && next != 0xff && !isRestart)
                return offset + at;
        }
        // The block's last byte may be the first of a marker.
        offset += data.size() - 1;
    }
}

// Goes from marker to marker, so that the end of a thumbnail in the header is not taken for the picture's.
// The data is read only when the file does not end with the picture.
bool hasJpegEnd(const OpenFile &file, bool endsWithPicture) {
    constexpr auto endOfImage = 0xd9;
    constexpr auto startOfScan = 0xda;
    std::optional<std::uint64_t> offset = 2;
    bool hasData = false;
    for (int part = 0; part < mostParts && offset; ++part) {
        std::array<char, 4> header{};
        const std::size_t count = file.read(*offset, header);
        if (count < 2 || header[0] != '\xff')
            return false;
        const auto marker = static_cast<unsigned char>(header[1]);
        if (marker == endOfImage)
            return hasData;
        if (marker == 0xff) {
            ++*offset;
            continue;
        }
        const std::uint64_t length = qFromBigEndian<quint16>(header.data() + 2);
        if (count < header.size() || length < 2)
            return false;
        *offset += 2 + length;
        if (marker != startOfScan)
            continue;
        if (endsWithPicture)
            return true;
        hasData = true;
        offset = endOfScan(file, *offset);
    }
    return false;
}

} // namespace

bool isWholePng(const OpenFile &file, std::uint64_t size) {
    constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
    constexpr auto end = "\0\0\0\0IEND\xae\x42\x60\x82"sv;
    std::array<char, signature.size()> head{};
    std::array<char, end.size()> tail{};
    return size > signature.size() + end.size() && readAt(file, 0, head) == signature &&
           (readAt(file, size - end.size(), tail) == end || hasPngEnd(file, size, signature.size()));
}

bool isWholeJpeg(const OpenFile &file, std::uint64_t size) {
    std::array<char, 3> head{};
    std::array<char, 2> tail{};
    return size > 4 && readAt(file, 0, head) == "\xff\xd8\xff"sv &&
           hasJpegEnd(file, readAt(file, size - 2, tail) == "\xff\xd9"sv);
}

} // namespace tembra
