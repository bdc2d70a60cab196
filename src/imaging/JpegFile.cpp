#include "imaging/JpegFile.h"

#include "imaging/ExifFields.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

namespace tembra {

namespace {

using namespace std::string_view_literals;

enum Marker : unsigned char {
    huffmanTables = 0xc4,
    arithmeticTables = 0xcc,
    restart0 = 0xd0,
    startOfImage = 0xd8,
    endOfImage = 0xd9,
    startOfScan = 0xda,
    application0 = 0xe0,
    application1 = 0xe1,
    application2 = 0xe2,
};

unsigned char byte(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

int number(std::string_view bytes, std::size_t index) {
    return qFromBigEndian<quint16>(bytes.data() + index);
}

bool startsFrame(unsigned char marker) {
    // Between them lie two kinds of tables and one reserved number.
    return marker >= 0xc0 && marker <= 0xcf && marker != huffmanTables && marker != 0xc8 &&
           marker != arithmeticTables;
}

class SegmentWalk {
public:
    std::optional<JpegFile> read(std::string_view bytes) {
        if (!bytes.starts_with("\xff\xd8\xff"sv))
            return std::nullopt;
        bytes.remove_prefix(2);
        while (true) {
            const auto marker = takeMarker(bytes);
            if (!marker || *marker == endOfImage || (*marker >= restart0 && *marker <= startOfImage))
                return std::nullopt;
            if (*marker == startOfScan)
                return finished();
            if (bytes.size() < 2)
                return std::nullopt;
            const auto length = static_cast<std::size_t>(number(bytes, 0));
            if (length < 2 || length > bytes.size())
                return std::nullopt;
            if (!accept(*marker, bytes.substr(2, length - 2)))
                return std::nullopt;
            bytes.remove_prefix(length);
        }
    }

private:
    static std::optional<unsigned char> takeMarker(std::string_view &bytes) {
        if (bytes.empty() || bytes.front() != '\xff')
            return std::nullopt;
        const auto end = bytes.find_first_not_of('\xff');
        if (end == std::string_view::npos || bytes[end] == '\0')
            return std::nullopt;
        const unsigned char marker = byte(bytes, end);
        bytes.remove_prefix(end + 1);
        return marker;
    }

    bool accept(unsigned char marker, std::string_view data) {
        constexpr auto exif = "Exif\0\0"sv;
        if (startsFrame(marker))
            return acceptFrame(data);
        if (marker == application0 && data.starts_with("JFIF\0"sv))
            acceptDensity(data);
        else if (marker == application1 && data.starts_with(exif) && !m_exif)
            m_exif = readExif(data.substr(exif.size()));
        else if (marker == application2)
            acceptProfile(data);
        return true;
    }

    bool acceptFrame(std::string_view data) {
        // The precision, the size, and how many components of three bytes follow.
        if (data.size() < 6 || m_file.components != 0)
            return false;
        m_file.header.size = QSize(number(data, 3), number(data, 1));
        m_file.components = byte(data, 5);
        m_file.header.bitsPerPixel = 8 * m_file.components;
        const bool isKnown = m_file.components == 1 || m_file.components == 3 || m_file.components == 4;
        return data[0] == 8 && isKnown && !m_file.header.size.isEmpty();
    }

    void acceptDensity(std::string_view data) {
        if (data.size() < 12)
            return;
        const int unit = byte(data, 7);
        const int across = number(data, 8);
        const int down = number(data, 10);
        if ((unit != 1 && unit != 2) || across == 0 || down == 0)
            return;
        const double factor = unit == 1 ? 1 / 0.0254 : 100;
        m_density = QSize(static_cast<int>(std::lround(across * factor)),
                          static_cast<int>(std::lround(down * factor)));
    }

    // A profile (ICC.1, annex B.4) comes in numbered pieces.
    void acceptProfile(std::string_view data) {
        constexpr auto name = "ICC_PROFILE\0"sv;
        if (!data.starts_with(name) || data.size() < name.size() + 2)
            return;
        m_profilePieces = byte(data, name.size() + 1);
        m_profile.try_emplace(byte(data, name.size()), data.substr(name.size() + 2));
    }

    [[nodiscard]] QByteArray joinedProfile() const {
        if (m_profile.empty() || m_profile.size() != static_cast<std::size_t>(m_profilePieces) ||
            m_profile.begin()->first != 1 || m_profile.rbegin()->first != m_profilePieces)
            return {};
        QByteArray joined;
        for (const auto &[index, piece] : m_profile)
            joined.append(piece.data(), static_cast<qsizetype>(piece.size()));
        return joined;
    }

    std::optional<JpegFile> finished() {
        if (m_file.components == 0)
            return std::nullopt;
        const ExifFields exif = m_exif.value_or(ExifFields());
        m_file.header.type = PictureType::jpeg;
        m_file.header.orientation = exif.orientation;
        m_file.header.metadata = exif.metadata;
        if (m_density)
            m_file.header.metadata.dotsPerMeter = m_density;
        m_file.colourProfile = joinedProfile();
        return std::move(m_file);
    }

    JpegFile m_file;
    std::optional<ExifFields> m_exif;
    std::optional<QSize> m_density;
    std::map<int, std::string_view> m_profile;
    int m_profilePieces = 0;
};

} // namespace

std::optional<JpegFile> readJpegFile(QByteArrayView bytes) {
    return SegmentWalk().read({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tembra
