#pragma once

#include "platform/OpenFile.h"

#include <algorithm>
#include <cstring>

namespace tembra {

// An open file whose bytes are given; it has no attributes.
class MemoryFile final : public OpenFile {
public:
    explicit MemoryFile(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    [[nodiscard]] FileFacts facts() const override { return {.kind = FileKind::regular, .size = size()}; }
    [[nodiscard]] std::uint64_t size() const override { return static_cast<std::uint64_t>(m_bytes.size()); }
    [[nodiscard]] std::optional<QByteArray> attribute(const char *) const override { return std::nullopt; }
    [[nodiscard]] std::size_t read(std::uint64_t offset, std::span<char> into) const override {
        const auto size = static_cast<std::uint64_t>(m_bytes.size());
        if (offset >= size || into.empty())
            return 0;
        const std::size_t count = std::min<std::uint64_t>(into.size(), size - offset);
        std::memcpy(into.data(), m_bytes.constData() + offset, count);
        return count;
    }

private:
    const QByteArray m_bytes;
};

} // namespace tembra
