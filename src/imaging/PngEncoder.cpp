#include "imaging/PngEncoder.h"

#include "imaging/DeflateHalves.h"
#include "imaging/PageBuffer.h"
#include "imaging/PngRowFilter.h"

#include <QtEndian>

#include <algorithm>
#include <libdeflate.h>
#include <span>

namespace tembra {

namespace {

// What is kept for the next picture.
constexpr std::size_t mostKeptBytes = std::size_t{32} << 20;

QByteArray number(quint32 value) {
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

void appendChunk(QByteArray &file, const char *type, QByteArrayView data) {
    file += number(static_cast<quint32>(data.size()));
    const qsizetype checked = file.size();
    file += type;
    file += data;
    file += number(
        libdeflate_crc32(0, file.constData() + checked, static_cast<std::size_t>(file.size() - checked)));
}

void appendText(QByteArray &file, const char *keyword, const QString &text) {
    if (text.isEmpty())
        return;
    const QByteArray start = QByteArray(keyword) + '\0';
    if (QString::fromLatin1(text.toLatin1()) == text)
        appendChunk(file, "tEXt", start + text.toLatin1());
    else
        appendChunk(file, "iTXt", start + QByteArray(4, '\0') + text.toUtf8());
}

// In chunks that every reader takes.
void appendPixels(QByteArray &file, std::span<const unsigned char> compressed) {
    constexpr std::size_t longest = std::size_t{1} << 30;
    while (!compressed.empty()) {
        const auto piece = compressed.first(std::min(longest, compressed.size()));
        appendChunk(file, "IDAT", {piece.data(), static_cast<qsizetype>(piece.size())});
        compressed = compressed.subspan(piece.size());
    }
}

std::optional<DeflateHalves::Stream> deflated(const PngRowFilter &filter, PageBuffer &memory) {
    const int middle = filter.height() / 2;
    DeflateHalves halves;
    halves.sizes = {filter.stride() * static_cast<std::size_t>(middle),
                    filter.stride() * static_cast<std::size_t>(filter.height() - middle)};
    halves.isOfDifferences = filter.looksLikePhotograph();
    halves.make = [&](std::size_t half, std::span<unsigned char> rows) {
        filter.write(half == 0 ? 0 : middle, rows);
    };
    return halves.compress(memory);
}

} // namespace

std::optional<QByteArray> encodePng(const QImage &image, const PictureMetadata &metadata) {
    if (image.isNull())
        return std::nullopt;
    const PngRowFilter filter(image);
    thread_local PageBuffer memory;
    const auto pixels = deflated(filter, memory);
    if (!pixels)
        return std::nullopt;
    QByteArray file("\x89PNG\r\n\x1a\n");
    file.reserve(static_cast<qsizetype>(pixels->front().size() + pixels->back().size()) + 1'024);
    constexpr char rgb = 2;
    constexpr char rgba = 6;
    appendChunk(file, "IHDR",
                number(static_cast<quint32>(image.width())) + number(static_cast<quint32>(image.height())) +
                    '\x8' + (filter.channels() == 4 ? rgba : rgb) + QByteArray(3, '\0'));
    appendChunk(file, "sRGB", QByteArray(1, '\0'));
    if (metadata.dotsPerMeter)
        appendChunk(file, "pHYs",
                    number(static_cast<quint32>(metadata.dotsPerMeter->width())) +
                        number(static_cast<quint32>(metadata.dotsPerMeter->height())) + '\x1');
    appendText(file, "Creation Time", metadata.creationTime);
    appendText(file, "Software", metadata.software);
    for (const auto half : *pixels)
        appendPixels(file, half);
    appendChunk(file, "IEND", {});
    if (2 * filter.stride() * static_cast<std::size_t>(filter.height()) > mostKeptBytes)
        memory.release();
    return file;
}

} // namespace tembra
