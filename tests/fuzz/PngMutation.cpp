#include "fuzz/PngMutation.h"

#include "fuzz/Mutation.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <libdeflate.h>
#include <memory>
#include <random>
#include <vector>

namespace tembra {

namespace {

constexpr qsizetype signatureSize = 8;
// A chunk's length and type, and its checksum.
constexpr qsizetype front = 8;
constexpr qsizetype overhead = 12;
// Of pixels that are changed before compression.
constexpr std::size_t mostPixelBytes = 1 << 20;

bool isPng(const QByteArray &file) {
    return file.startsWith("\x89PNG\r\n\x1a\n");
}

quint32 lengthAt(const QByteArray &file, qsizetype chunk) {
    return qFromBigEndian<quint32>(file.constData() + chunk);
}

// Calls for the place of every whole chunk.
template <class Visit>
void forChunks(const QByteArray &file, Visit visit) {
    for (qsizetype at = signatureSize; at + overhead <= file.size(); at += overhead + lengthAt(file, at)) {
        if (lengthAt(file, at) > static_cast<quint64>(file.size() - at - overhead))
            return;
        visit(at);
    }
}

void rightChecksums(QByteArray &file) {
    forChunks(file, [&](qsizetype at) {
        const qsizetype length = lengthAt(file, at);
        const auto sum = libdeflate_crc32(0, file.constData() + at + 4, static_cast<std::size_t>(length) + 4);
        qToBigEndian(sum, file.data() + at + front + length);
    });
}

QByteArray chunk(const QByteArray &type, const QByteArray &data) {
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(data.size()), bytes.data());
    return bytes + type + data + QByteArray(4, '\0');
}

struct Release {
    void operator()(libdeflate_decompressor *decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

QByteArray inflated(const QByteArray &bytes) {
    const std::unique_ptr<libdeflate_decompressor, Release> decompressor(libdeflate_alloc_decompressor());
    std::vector<char> room(mostPixelBytes);
    std::size_t size = 0;
    const auto result =
        libdeflate_zlib_decompress(decompressor.get(), bytes.constData(),
                                   static_cast<std::size_t>(bytes.size()), room.data(), room.size(), &size);
    return result == LIBDEFLATE_SUCCESS ? QByteArray(room.data(), static_cast<qsizetype>(size))
                                        : QByteArray();
}

QByteArray deflated(const QByteArray &bytes) {
    const std::unique_ptr<libdeflate_compressor, Release> compressor(libdeflate_alloc_compressor(6));
    const auto size = static_cast<std::size_t>(bytes.size());
    QByteArray room(static_cast<qsizetype>(libdeflate_zlib_compress_bound(compressor.get(), size)), '\0');
    room.resize(static_cast<qsizetype>(libdeflate_zlib_compress(
        compressor.get(), bytes.constData(), size, room.data(), static_cast<std::size_t>(room.size()))));
    return room;
}

// With other pixels, in one piece where the first was.
QByteArray withOtherPixels(const QByteArray &file) {
    QByteArray before = file.first(signatureSize);
    QByteArray after;
    QByteArray pixels;
    forChunks(file, [&](qsizetype at) {
        const qsizetype length = lengthAt(file, at);
        if (file.sliced(at + 4, 4) == "IDAT")
            pixels += file.sliced(at + front, length);
        else
            (pixels.isEmpty() ? before : after) += file.sliced(at, length + overhead);
    });
    pixels = inflated(pixels);
    if (pixels.isEmpty())
        return file;
    const auto size = static_cast<std::size_t>(pixels.size());
    pixels.resize(pixels.size() + 64);
    pixels.resize(static_cast<qsizetype>(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t *>(pixels.data()),
                                                          size, static_cast<std::size_t>(pixels.size()))));
    return before + chunk("IDAT", deflated(pixels)) + after;
}

} // namespace

std::size_t mutatePng(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed) {
    std::minstd_rand random(seed);
    QByteArray file(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (isPng(file) && random() % 4 == 0)
        file = withOtherPixels(file);
    if (file.size() > static_cast<qsizetype>(room) ||
        file == QByteArrayView(data, static_cast<qsizetype>(size))) {
        size = LLVMFuzzerMutate(data, size, room);
        file = QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    }
    if (isPng(file) && random() % 16 != 0)
        rightChecksums(file);
    std::ranges::copy(file, data);
    return static_cast<std::size_t>(file.size());
}

} // namespace tembra
