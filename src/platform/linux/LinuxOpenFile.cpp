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
    struct stat facts {};
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &facts) != 0)
        return failure(posixError());
    if (!S_ISREG(facts.st_mode))
        return failure(posixError(S_ISDIR(facts.st_mode) ? EISDIR : EINVAL));
    return std::make_unique<LinuxOpenFile>(std::move(descriptor), static_cast<std::uint64_t>(facts.st_size),
                                           reader);
}

LinuxOpenFile::LinuxOpenFile(Descriptor descriptor, std::uint64_t size, const LinuxFileFactsReader &reader)
    : m_descriptor(std::move(descriptor)),
      m_size(size),
      m_reader(reader),
      m_hasAttributes(::flistxattr(m_descriptor.number(), nullptr, 0) > 0) {}

FileFacts LinuxOpenFile::facts() const {
    return m_reader.factsOfOpen(m_descriptor.number(), m_hasAttributes).value_or(FileFacts());
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
