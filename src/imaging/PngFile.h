#pragma once

#include <QRgb>
#include <QSize>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace tembra {

// What a PNG file (ISO/IEC 15948) of the common kind says ahead of its pixels. Common is: eight bits a
// channel or a palette index, not interlaced, in the colours of screens, every checksum right.
struct PngFile {
    enum class Kind : unsigned char { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

    static constexpr std::size_t headSize = 33;

    struct Head {
        QSize size;
        Kind kind = Kind::Rgb;

        // Bytes a pixel.
        [[nodiscard]] int channels() const;
        // Bytes of a row with the byte that names its filter.
        [[nodiscard]] std::size_t stride() const;
        [[nodiscard]] std::size_t pixelBytes() const;
    };

    Head head;
    // The entries beyond `colours` mean nothing.
    std::array<QRgb, 256> palette{};
    std::size_t colours = 0;
    bool hasTransparentColours = false;
    // The pieces of the compressed pixels, within the bytes that were read.
    std::vector<std::span<const unsigned char>> pieces;

    // Nothing when the file is not of the common kind. `start` holds the file's first `headSize` bytes.
    [[nodiscard]] static std::optional<Head> readHead(std::span<const unsigned char> start);
    // Nothing when the file is damaged, or anything in it could change how the picture looks.
    [[nodiscard]] static std::optional<PngFile> read(std::span<const unsigned char> bytes);

    [[nodiscard]] std::size_t compressedBytes() const;
    // The compressed pixels in one piece, in `room` if they are not so already. The room holds as many bytes;
    // it may be the memory that was read, and is spoilt then.
    [[nodiscard]] std::span<const unsigned char> joinedIn(std::span<unsigned char> room) const;
};

} // namespace tembra
