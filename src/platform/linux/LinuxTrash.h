#pragma once

#include "base/Clocks.h"
#include "platform/Trash.h"
#include "platform/linux/HomeTrash.h"
#include "platform/linux/LinuxFileFacts.h"

namespace tembra {

// The desktop's Trash (freedesktop.org, Trash 1.0): the user's own where files can be renamed to it, else the
// one at the top of the file's volume. Everything is done relative to open folders, and what was moved is
// looked at afterwards: had another file taken the name in between, it is moved back.
class LinuxTrash final : public Trash {
public:
    // The reader must outlive this. `homeTrash` is the user's own Trash.
    LinuxTrash(
        const LinuxFileFactsReader &reader, const QString &homeTrash, WallClock now = systemNow,
        TrashSteps onStep = [](const char *) {});

    [[nodiscard]] Result<QString> moveToTrash(const QString &path, const Guard &guard) override;
    [[nodiscard]] Result<void> restore(const QString &trashPath, const QString &originalPath,
                                       const Guard &guard) override;

private:
    struct Received {
        std::shared_ptr<const TrashFolder> trash;
        QByteArray name;
    };

    // Tries the user's Trash, then the volume's: EXDEV if neither can be used.
    [[nodiscard]] Result<Received> receive(const HeldEntry &entry);
    [[nodiscard]] bool isExpected(const HeldEntry &entry, const Guard &guard) const;

    const LinuxFileFactsReader &m_reader;
    HomeTrash m_home;
    const WallClock m_now;
    const TrashSteps m_onStep;
};

} // namespace tembra
