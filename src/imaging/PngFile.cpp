#include "imaging/PngFile.h"

#include "imaging/PngColours.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <libdeflate.h>
#include <string_view>
#include <utility>

namespace tembra {

namespace {

using namespace std::string_view_literals;
using Bytes = std::span<const unsigned char>;

constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
// The length and type before a chunk's data, the checksum after it.
constexpr std::size_t chunkFront = 8;
constexpr std::size_t chunkOverhead = 12;
constexpr std::size_t headLength = 13;
constexpr quint32 longestSide = 65'535;

// They change nothing about how a picture looks.
constexpr std::array harmless{"tEXt"sv, "zTXt"sv, "iTXt"sv, "tIME"sv, "pHYs"sv, "sBIT"sv, "bKGD"sv};

quint32 number(Bytes bytes) {
    return qFromBigEndian<quint32>(bytes.data());
}

std::string_view text(Bytes bytes) {
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

// One look at all the chunks of a file.
class ChunkReader {
public:
    explicit ChunkReader(Bytes bytes) : m_rest(bytes) {}

    std::optional<PngFile> read() {
        const auto head = PngFile::readHead(m_rest);
        if (!head)
            return std::nullopt;
        m_file.head = *head;
        m_rest = m_rest.subspan(PngFile::headSize);
        while (!m_ended) {
            if (!readChunk())
                return std::nullopt;
        }
        const bool hasPalette = m_file.colours > 0;
        const bool needsPalette = head->kind == PngFile::Kind::Palette;
        if (m_file.pieces.empty() || (needsPalette && !hasPalette))
            return std::nullopt;
        return std::move(m_file);
    }

private:
    bool readChunk() {
        if (m_rest.size() < chunkOverhead)
            return false;
        const std::size_t length = number(m_rest);
        if (length > m_rest.size() - chunkOverhead)
            return false;
        const Bytes checked = m_rest.subspan(4, length + 4);
        if (libdeflate_crc32(0, checked.data(), checked.size()) !=
            number(m_rest.subspan(chunkFront + length)))
            return false;
        const Bytes chunk = m_rest.subspan(chunkFront, length);
        m_rest = m_rest.subspan(chunkOverhead + length);
        return accept(text(checked.first(4)), chunk);
    }

    bool accept(std::string_view type, Bytes data) {
        const bool followsPixels = m_lastWasPixels;
        m_lastWasPixels = type == "IDAT"sv;
        if (type == "IDAT"sv) {
            m_file.pieces.push_back(data);
            return m_file.pieces.size() == 1 || followsPixels;
        }
        if (type == "IEND"sv)
            return m_ended = data.empty();
        if (std::ranges::find(harmless, type) != harmless.end())
            return true;
        // What follows belongs before the pixels.
        if (!m_file.pieces.empty())
            return false;
        if (type == "PLTE"sv)
            return addPalette(data);
        if (type == "tRNS"sv)
            return addTransparency(data);
        if (type == "sRGB"sv)
            return data.size() == 1 && data.front() <= 3;
        return (type == "gAMA"sv && isSrgbGamma(data)) || (type == "cHRM"sv && isSrgbChromaticities(data));
    }

    bool addPalette(Bytes data) {
        const bool isColoured =
            m_file.head.kind != PngFile::Kind::Grey && m_file.head.kind != PngFile::Kind::GreyAlpha;
        if (!isColoured || m_file.colours > 0 || data.empty() || data.size() % 3 != 0 || data.size() > 768)
            return false;
        m_file.colours = data.size() / 3;
        for (std::size_t i = 0; i < m_file.colours; ++i)
            m_file.palette[i] = qRgb(data[3 * i], data[3 * i + 1], data[3 * i + 2]);
        return true;
    }

    bool addTransparency(Bytes data) {
        if (m_file.head.kind != PngFile::Kind::Palette || m_hasTransparency || data.size() > m_file.colours)
            return false;
        m_hasTransparency = true;
        for (std::size_t i = 0; i < data.size(); ++i) {
            const QRgb colour = m_file.palette[i];
            m_file.palette[i] = qRgba(qRed(colour), qGreen(colour), qBlue(colour), data[i]);
            m_file.hasTransparentColours = m_file.hasTransparentColours || data[i] != 255;
        }
        return true;
    }

    Bytes m_rest;
    PngFile m_file;
    bool m_lastWasPixels = false;
    bool m_hasTransparency = false;
    bool m_ended = false;
};

} // namespace

int PngFile::Head::channels() const {
    switch (kind) {
    case Kind::Grey:
    case Kind::Palette:
        return 1;
    case Kind::GreyAlpha:
        return 2;
    case Kind::Rgb:
        return 3;
    case Kind::Rgba:
        return 4;
    }
    Q_UNREACHABLE();
}

std::size_t PngFile::Head::stride() const {
    return 1 + static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(channels());
}

std::size_t PngFile::Head::pixelBytes() const {
    return stride() * static_cast<std::size_t>(size.height());
}

std::optional<PngFile::Head> PngFile::readHead(std::span<const unsigned char> start) {
    if (start.size() < headSize || !text(start).starts_with(signature))
        return std::nullopt;
    const Bytes chunk = start.subspan(signature.size(), chunkOverhead + headLength);
    if (number(chunk) != headLength || text(chunk.subspan(4, 4)) != "IHDR"sv ||
        libdeflate_crc32(0, chunk.data() + 4, headLength + 4) != number(chunk.last(4)))
        return std::nullopt;
    const Bytes data = chunk.subspan(chunkFront, headLength);
    const quint32 width = number(data);
    const quint32 height = number(data.subspan(4));
    if (width == 0 || height == 0 || width > longestSide || height > longestSide)
        return std::nullopt;
    const bool isKnownKind = data[9] == 0 || data[9] == 2 || data[9] == 3 || data[9] == 4 || data[9] == 6;
    // Eight bits, the one compression and the one set of filters that there are, no interlacing.
    if (data[8] != 8 || !isKnownKind || data[10] != 0 || data[11] != 0 || data[12] != 0)
        return std::nullopt;
    return Head{QSize(static_cast<int>(width), static_cast<int>(height)), static_cast<Kind>(data[9])};
}

std::optional<PngFile> PngFile::read(std::span<const unsigned char> bytes) {
    return ChunkReader(bytes).read();
}

std::size_t PngFile::compressedBytes() const {
    std::size_t size = 0;
    for (const Bytes piece : pieces)
        size += piece.size();
    return size;
}

std::span<const unsigned char> PngFile::joinedIn(std::span<unsigned char> room) const {
    if (pieces.size() == 1)
        return pieces.front();
    std::size_t size = 0;
    for (const Bytes piece : pieces) {
        std::memmove(room.data() + size, piece.data(), piece.size());
        size += piece.size();
    }
    return room.first(size);
}

} // namespace tembra
