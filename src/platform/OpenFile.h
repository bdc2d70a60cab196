#pragma once

#include "platform/FileFacts.h"

#include <QByteArray>

#include <optional>
#include <span>

namespace tembra {

// A regular file opened for reading: what is asked about it is one file, whatever happens to its name
// meanwhile. Any thread, one at a time.
class OpenFile {
public:
    virtual ~OpenFile() = default;
    // As the file was opened.
    [[nodiscard]] virtual FileFacts facts() const = 0;
    // In bytes, as the file was opened: costs nothing, where `facts` asks the system for more.
    [[nodiscard]] virtual std::uint64_t size() const = 0;
    // An extended attribute by its name without a platform's prefix; nothing when it is absent.
    [[nodiscard]] virtual std::optional<QByteArray> attribute(const char *name) const = 0;
    // Reads from `offset` on and gives how many bytes there were; 0 at the end and on errors.
    [[nodiscard]] virtual std::size_t read(std::uint64_t offset, std::span<char> into) const = 0;
};

} // namespace tembra
