#include "platform/linux/LinuxOpenFile.h"

#include "platform/linux/PosixError.h"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tembra {

Result<std::unique_ptr<OpenFile>> LinuxOpenFile::open(int folder, const char *name,
                                                      const LinuxFileFactsReader &reader) {
    // Opening a pipe or a device could wait for somebody or do something: without waiting, and refused below.
    Descriptor descriptor(::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (!descriptor.isOpen())
        return failure(posixError());
    const auto status = LinuxFileFactsReader::statusOfOpen(descriptor.number());
    if (!status)
        return failure(status.error());
    if (!S_ISREG(status->stx_mode))
        return failure(posixError(S_ISDIR(status->stx_mode) ? EISDIR : EINVAL));
    return std::make_unique<LinuxOpenFile>(std::move(descriptor), *status, reader);
}

LinuxOpenFile::LinuxOpenFile(Descriptor descriptor, const struct statx &status,
                             const LinuxFileFactsReader &reader)
    : m_descriptor(std::move(descriptor)),
      m_status(status),
      m_reader(reader),
      m_hasAttributes(::flistxattr(m_descriptor.number(), nullptr, 0) > 0) {}

FileFacts LinuxOpenFile::facts() const {
    return m_reader.factsOfOpen(m_descriptor.number(), m_status, m_hasAttributes);
}

std::optional<QByteArray> LinuxOpenFile::attribute(const char *name) const {
    if (!m_hasAttributes)
        return std::nullopt;
    QByteArray value(512, Qt::Uninitialized);
    const ssize_t size = ::fgetxattr(m_descriptor.number(), (std::string("user.") + name).c_str(),
                                     value.data(), static_cast<std::size_t>(value.size()));
    if (size < 0)
        return std::nullopt;
    value.truncate(size);
    return value;
}

std::size_t LinuxOpenFile::read(std::uint64_t offset, std::span<char> into) const {
    const ssize_t count =
        ::pread(m_descriptor.number(), into.data(), into.size(), static_cast<off_t>(offset));
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

} // namespace tembra
