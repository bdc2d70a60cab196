#include "platform/linux/recognition/worker/PictureSocket.h"

#include "platform/linux/recognition/WorkerProtocol.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tembra::recognition {

namespace {

GreyPicture greyPicture(const PictureHeader &header, const unsigned char *rows) {
    GreyPicture grey(static_cast<int>(header.width), static_cast<int>(header.height));
    for (int y = 0; y < grey.height; ++y)
        std::memcpy(grey.row(y), rows + std::size_t{header.bytesPerRow} * static_cast<std::size_t>(y),
                    header.width);
    return grey;
}

// Nothing when it is none.
std::optional<GreyPicture> pictureOf(int file) {
    constexpr std::uint32_t longestSide = 32'767;
    struct stat status {};
    if (fstat(file, &status) != 0 || status.st_size < static_cast<off_t>(sizeof(PictureHeader)))
        return {};
    const auto size = static_cast<std::size_t>(status.st_size);
    void *const memory = mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    if (memory == MAP_FAILED)
        return {};
    PictureHeader header;
    std::memcpy(&header, memory, sizeof header);
    const bool isWhole = header.magic == PictureHeader::expectedMagic && header.width > 0 &&
                         header.height > 0 && header.width <= longestSide && header.height <= longestSide &&
                         header.bytesPerRow >= header.width &&
                         std::size_t{header.bytesPerRow} * header.height <= size - sizeof header;
    const auto *const rows = static_cast<const unsigned char *>(memory) + sizeof header;
    std::optional<GreyPicture> picture;
    if (isWhole)
        picture = greyPicture(header, rows);
    munmap(memory, size);
    return picture;
}

} // namespace

std::optional<GreyPicture> PictureSocket::next(std::chrono::milliseconds idleTime) const {
    pollfd waiting{m_descriptor, POLLIN, 0};
    if (poll(&waiting, 1, static_cast<int>(idleTime.count())) <= 0)
        return {};
    const int file = receive();
    if (file < 0)
        return {};
    std::optional<GreyPicture> picture = say(takenMark) ? pictureOf(file) : std::nullopt;
    close(file);
    return picture;
}

bool PictureSocket::answer(const std::vector<ReadLine> &lines) const {
    std::string text;
    for (const ReadLine &line : lines) {
        for (const ReadWord &word : line) {
            const TextBox &box = word.box;
            std::array<char, 96> edges{};
            (void)std::snprintf(edges.data(), edges.size(), "%.1f %.1f %.1f %.1f ", box.left, box.top,
                                box.right, box.bottom);
            text.append(edges.data()).append(word.text).append("\n");
        }
        text += '\n';
    }
    return say(text.append(endMark));
}

bool PictureSocket::say(std::string_view text) const {
    while (!text.empty()) {
        const ssize_t size = ::send(m_descriptor, text.data(), text.size(), MSG_NOSIGNAL);
        if (size < 0 && errno != EINTR)
            return false;
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    }
    return true;
}

int PictureSocket::receive() const {
    int file = -1;
    char byte = 0;
    iovec content{&byte, 1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof file)> control{};
    msghdr message{};
    message.msg_iov = &content;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (recvmsg(m_descriptor, &message, MSG_CMSG_CLOEXEC) != 1)
        return -1;
    const cmsghdr *const header = CMSG_FIRSTHDR(&message);
    if (header && header->cmsg_type == SCM_RIGHTS && header->cmsg_len == CMSG_LEN(sizeof file))
        std::memcpy(&file, CMSG_DATA(header), sizeof file);
    return file;
}

} // namespace tembra::recognition
