#include "platform/linux/recognition/PictureHandover.h"

#include "platform/linux/PosixError.h"
#include "platform/linux/recognition/WorkerProtocol.h"

#include <QPainter>

#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>

namespace tembra {

Result<Descriptor> pictureInMemory(const QImage &image) {
    constexpr qsizetype rowAlignment = 4;
    const recognition::PictureHeader header{
        .width = static_cast<std::uint32_t>(image.width()),
        .height = static_cast<std::uint32_t>(image.height()),
        .bytesPerRow =
            static_cast<std::uint32_t>((image.width() + rowAlignment - 1) / rowAlignment * rowAlignment),
    };
    const std::size_t size = sizeof header + std::size_t{header.bytesPerRow} * header.height;
    Descriptor file(::memfd_create("tembra-recognition", MFD_CLOEXEC));
    if (!file.isOpen())
        return failure(posixError());
    // Memory that is not there is an error now instead of a signal later.
    if (const int code = ::posix_fallocate(file.number(), 0, static_cast<off_t>(size)); code != 0)
        return failure(posixError(code));
    void *const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.number(), 0);
    if (memory == MAP_FAILED)
        return failure(posixError());
    std::memcpy(memory, &header, sizeof header);
    QImage grey(static_cast<uchar *>(memory) + sizeof header, image.width(), image.height(),
                static_cast<qsizetype>(header.bytesPerRow), QImage::Format_Grayscale8);
    // Dark text and light text both stand out from what is transparent.
    grey.fill(Qt::gray);
    QPainter(&grey).drawImage(grey.rect(), image, image.rect());
    ::munmap(memory, size);
    return file;
}

} // namespace tembra
