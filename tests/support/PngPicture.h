#pragma once

#include <QByteArray>
#include <QRandomGenerator>
#include <QSize>
#include <QtEndian>

#include <array>

// PNG files made by hand, so that any part of them can be wrong.
namespace tembra::png {

enum Kind : char { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

inline QByteArray number(quint32 value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

// ISO/IEC 15948, annex D.
inline quint32 checksum(const QByteArray &bytes) {
    quint32 rest = 0xffff'ffff;
    for (const char byte : bytes) {
        rest ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            rest = rest & 1 ? 0xedb8'8320 ^ rest >> 1 : rest >> 1;
    }
    return ~rest;
}

inline QByteArray chunk(const QByteArray &type, const QByteArray &data) {
    const QByteArray checked = type + data;
    return number(static_cast<quint32>(data.size())) + checked + number(checksum(checked));
}

// Predicts a byte as each of the five filters says.
inline int prediction(int filter, int left, int up, int corner) {
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
                const int x = static_cast<int>(i) / channels();
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

} // namespace tembra::png
