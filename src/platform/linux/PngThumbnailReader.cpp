#include "platform/linux/PngThumbnailReader.h"

#include "imaging/PngFile.h"
#include "imaging/PngRows.h"
#include "platform/linux/Descriptor.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tembra {

namespace {

// Larger pictures are rare, and several threads at once would take too much memory for them.
constexpr std::size_t mostPixelBytes = std::size_t{128} << 20;
constexpr std::size_t mostFileBytes = mostPixelBytes;
// What is kept for the next picture.
constexpr std::size_t mostKeptBytes = std::size_t{48} << 20;

using Bytes = std::span<unsigned char>;

bool readAt(const Descriptor &file, Bytes bytes, std::size_t offset) {
    while (!bytes.empty()) {
        const ssize_t count = ::pread(file.number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace

std::optional<QImage> PngThumbnailReader::read(const QString &path, int side) {
    const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    const auto fileSize = static_cast<std::size_t>(status.st_size);
    std::array<unsigned char, PngFile::headSize> start{};
    if (fileSize < start.size() || fileSize > mostFileBytes || !readAt(file, start, 0))
        return std::nullopt;
    const auto head = PngFile::readHead(start);
    if (!head || std::max(head->size.width(), head->size.height()) / 2 < side ||
        head->pixelBytes() > mostPixelBytes)
        return std::nullopt;
    const Bytes bytes = m_file.take(fileSize);
    if (bytes.empty() || !readAt(file, bytes, 0))
        return std::nullopt;
    const auto png = PngFile::read(bytes);
    // The file may have been replaced since its start was read.
    if (!png || png->head.size != head->size || png->head.kind != head->kind)
        return std::nullopt;
    const Bytes pixels = m_pixels.take(head->pixelBytes());
    if (pixels.empty() || !inflateRows(*png, bytes, pixels))
        return std::nullopt;
    const QSize target = head->size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    auto image = reducedImageOfRows(*png, pixels, target);
    if (fileSize + pixels.size() > mostKeptBytes)
        release();
    return image;
}

void PngThumbnailReader::release() {
    m_file.release();
    m_pixels.release();
}

} // namespace tembra
