#include "platform/linux/PngText.h"

#include <QtEndian>

#include <array>
#include <string_view>

namespace tembra {

namespace {

using namespace std::string_view_literals;

constexpr auto signature = "\x89PNG\r\n\x1a\n"sv;
constexpr std::size_t chunkOverhead = 12;

std::optional<QByteArray> textOf(std::string_view type, std::string_view data, std::string_view keyword) {
    if (!data.starts_with(keyword) || data.size() <= keyword.size() || data[keyword.size()] != '\0')
        return std::nullopt;
    data.remove_prefix(keyword.size() + 1);
    if (type == "iTXt"sv) {
        // compression flag and method, then language and translated keyword, each ended by a zero
        if (data.size() < 2 || data[0] != '\0')
            return std::nullopt;
        data.remove_prefix(2);
        for (int field = 0; field < 2; ++field) {
            const auto end = data.find('\0');
            if (end == std::string_view::npos)
                return std::nullopt;
            data.remove_prefix(end + 1);
        }
    }
    return QByteArray(data.data(), static_cast<qsizetype>(data.size()));
}

} // namespace

std::optional<QByteArray> pngText(const OpenFile &file, const QByteArray &keyword) {
    std::array<char, 4096> buffer{};
    std::string_view head(buffer.data(), file.read(0, buffer));
    if (!head.starts_with(signature))
        return std::nullopt;
    head.remove_prefix(signature.size());
    while (head.size() >= chunkOverhead) {
        const std::size_t length = qFromBigEndian<quint32>(head.data());
        const std::string_view type = head.substr(4, 4);
        if (type == "IDAT"sv || length > head.size() - chunkOverhead)
            break;
        if (type == "tEXt"sv || type == "iTXt"sv) {
            const std::string_view wanted(keyword.constData(), static_cast<std::size_t>(keyword.size()));
            if (auto text = textOf(type, head.substr(8, length), wanted))
                return text;
        }
        head.remove_prefix(length + chunkOverhead);
    }
    return std::nullopt;
}

} // namespace tembra
