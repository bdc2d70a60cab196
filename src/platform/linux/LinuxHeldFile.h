#pragma once

#include "platform/HeldFile.h"
#include "platform/linux/Descriptor.h"

#include <atomic>
#include <memory>

namespace tembra {

// HeldFile by a descriptor that only names the file (O_PATH, see open(2)), whose path /proc/self/fd tells.
class LinuxHeldFile final : public HeldFile {
public:
    // Counts itself in `heldCount` while it lives.
    LinuxHeldFile(Descriptor file, std::shared_ptr<std::atomic<int>> heldCount);
    ~LinuxHeldFile() override;
    LinuxHeldFile(const LinuxHeldFile &) = delete;
    LinuxHeldFile &operator=(const LinuxHeldFile &) = delete;

    [[nodiscard]] std::optional<QString> path() const override;
    [[nodiscard]] bool isDeleted() const override;

private:
    const Descriptor m_file;
    const std::shared_ptr<std::atomic<int>> m_heldCount;
};

} // namespace tembra
