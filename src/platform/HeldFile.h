#pragma once

#include <QString>

#include <optional>

namespace tembra {

// A file or folder that the system keeps in sight, wherever it is moved on its volume. A link is held itself.
// Any thread.
class HeldFile {
public:
    virtual ~HeldFile() = default;
    // Where it is now; nothing when it cannot be reached under any name.
    [[nodiscard]] virtual std::optional<QString> path() const = 0;
    // It is not only out of reach: the name it had was taken away.
    [[nodiscard]] virtual bool isDeleted() const = 0;
};

} // namespace tembra
