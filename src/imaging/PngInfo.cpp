#include "imaging/PngInfo.h"

#include "imaging/ExifFields.h"
#include "imaging/PngColours.h"

#include <QtEndian>

#include <algorithm>
#include <libdeflate.h>
#include <span>
#include <string_view>

namespace tembra {

namespace {

using namespace std::string_view_literals;

constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
constexpr std::size_t chunkFront = 8;
constexpr std::size_t chunkOverhead = 12;
constexpr std::size_t headLength = 13;
constexpr quint32 longestSide = 0x7fff'ffff;
constexpr std::size_t longestExif = 65'536;
// Of a text that is kept.
constexpr std::size_t longestText = 256;

quint32 number(std::string_view bytes) {
    return qFromBigEndian<quint32>(bytes.data());
}

std::span<const unsigned char> octets(std::string_view bytes) {
    return {reinterpret_cast<const unsigned char *>(bytes.data()), bytes.size()};
}

// Bits a pixel; nothing when there is no such kind of pixel.
std::optional<int> bitsPerPixel(int depth, int kind) {
    const bool isDeep = depth == 8 || depth == 16;
    const bool isShallow = depth == 1 || depth == 2 || depth == 4;
    switch (kind) {
    case 0:
        return isDeep || isShallow ? std::optional(depth) : std::nullopt;
    case 2:
        return isDeep ? std::optional(3 * depth) : std::nullopt;
    case 3:
        return depth == 8 || isShallow ? std::optional(depth) : std::nullopt;
    case 4:
        return isDeep ? std::optional(2 * depth) : std::nullopt;
    case 6:
        return isDeep ? std::optional(4 * depth) : std::nullopt;
    default:
        return std::nullopt;
    }
}

// Takes what comes before the next zero, and the zero.
std::optional<std::string_view> takeField(std::string_view &data) {
    const auto end = data.find('\0');
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view field = data.substr(0, end);
    data.remove_prefix(end + 1);
    return field;
}

QByteArrayView kept(std::string_view text) {
    text = text.substr(0, std::min(text.find('\0'), longestText));
    return {text.data(), static_cast<qsizetype>(text.size())};
}

class ChunkWalk {
public:
    std::optional<PngInfo> read(std::string_view bytes) {
        if (!bytes.starts_with(signature))
            return std::nullopt;
        bytes.remove_prefix(signature.size());
        if (!readHead(bytes))
            return std::nullopt;
        bytes.remove_prefix(chunkOverhead + headLength);
        while (!m_info.isWhole && bytes.size() >= chunkOverhead) {
            const std::size_t length = number(bytes);
            if (length > bytes.size() - chunkOverhead)
                break;
            accept(bytes.substr(4, 4), bytes.substr(chunkFront, length));
            bytes.remove_prefix(chunkOverhead + length);
        }
        return m_info;
    }

private:
    bool readHead(std::string_view bytes) {
        if (bytes.size() < chunkOverhead + headLength || number(bytes) != headLength ||
            bytes.substr(4, 4) != "IHDR"sv)
            return false;
        if (libdeflate_crc32(0, bytes.data() + 4, headLength + 4) !=
            number(bytes.substr(chunkFront + headLength)))
            return false;
        const std::string_view data = bytes.substr(chunkFront, headLength);
        const quint32 width = number(data);
        const quint32 height = number(data.substr(4));
        const auto bits = bitsPerPixel(data[8], data[9]);
        if (width == 0 || height == 0 || width > longestSide || height > longestSide || !bits)
            return false;
        if (data[10] != 0 || data[11] != 0 || (data[12] != 0 && data[12] != 1))
            return false;
        m_info.header.type = PictureType::png;
        m_info.header.size = QSize(static_cast<int>(width), static_cast<int>(height));
        m_info.header.bitsPerPixel = *bits;
        return true;
    }

    void accept(std::string_view type, std::string_view data) {
        PictureHeader &header = m_info.header;
        if (type == "IEND"sv)
            m_info.isWhole = true;
        else if (type == "acTL"sv && data.size() >= 4)
            header.isSingleImage = header.isSingleImage && number(data) <= 1;
        else if (type == "pHYs"sv)
            acceptDensity(data);
        else if (type == "tEXt"sv)
            acceptText(data);
        else if (type == "iTXt"sv)
            acceptInternationalText(data);
        else if (type == "eXIf"sv && data.size() <= longestExif)
            header.orientation = readExif(data).orientation;
        else if (type == "iCCP"sv)
            m_info.isSrgb = false;
        else if (type == "gAMA"sv)
            m_info.isSrgb = m_info.isSrgb && isSrgbGamma(octets(data));
        else if (type == "cHRM"sv)
            m_info.isSrgb = m_info.isSrgb && isSrgbChromaticities(octets(data));
    }

    void acceptDensity(std::string_view data) {
        constexpr char perMeter = 1;
        if (data.size() != 9 || data[8] != perMeter)
            return;
        const quint32 across = number(data);
        const quint32 down = number(data.substr(4));
        if (across > 0 && down > 0 && across <= longestSide && down <= longestSide)
            m_info.header.metadata.dotsPerMeter = QSize(static_cast<int>(across), static_cast<int>(down));
    }

    QString *textOf(std::string_view keyword) {
        if (keyword == "Creation Time"sv)
            return &m_info.header.metadata.creationTime;
        return keyword == "Software"sv ? &m_info.header.metadata.software : nullptr;
    }

    void acceptText(std::string_view data) {
        const auto keyword = takeField(data);
        QString *text = keyword ? textOf(*keyword) : nullptr;
        if (text && text->isEmpty())
            *text = QString::fromLatin1(kept(data));
    }

    void acceptInternationalText(std::string_view data) {
        const auto keyword = takeField(data);
        QString *text = keyword ? textOf(*keyword) : nullptr;
        // Not compressed, by no method; the language and the keyword in it.
        if (!text || !text->isEmpty() || !data.starts_with("\0\0"sv))
            return;
        data.remove_prefix(2);
        if (!takeField(data) || !takeField(data))
            return;
        *text = QString::fromUtf8(kept(data));
    }

    PngInfo m_info;
};

} // namespace

std::optional<PngInfo> readPngInfo(QByteArrayView bytes) {
    return ChunkWalk().read({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tembra
