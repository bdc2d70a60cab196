#pragma once

#include "base/Result.h"
#include "platform/OpenFile.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/LinuxFileFacts.h"

#include <memory>
#include <sys/stat.h>

namespace tembra {

// OpenFile on a descriptor.
class LinuxOpenFile final : public OpenFile {
public:
    // Opens the regular file `name` relative to the folder's descriptor (AT_FDCWD for a path). Error:
    // "POSIX".
    [[nodiscard]] static Result<std::unique_ptr<OpenFile>> open(int folder, const char *name,
                                                                const LinuxFileFactsReader &reader);

    LinuxOpenFile(Descriptor descriptor, const struct statx &status, const LinuxFileFactsReader &reader);

    [[nodiscard]] FileFacts facts() const override;
    [[nodiscard]] std::uint64_t size() const override { return m_status.stx_size; }
    [[nodiscard]] std::optional<QByteArray> attribute(const char *name) const override;
    [[nodiscard]] std::size_t read(std::uint64_t offset, std::span<char> into) const override;

private:
    Descriptor m_descriptor;
    const struct statx m_status;
    const LinuxFileFactsReader &m_reader;
    // Most files have no attributes at all: one call tells, and spares one a name.
    bool m_hasAttributes = false;
};

} // namespace tembra
