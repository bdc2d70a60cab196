#pragma once

#include "platform/linux/Descriptor.h"
#include "platform/linux/HeldEntry.h"
#include "platform/linux/MountKey.h"

#include <QByteArray>

#include <functional>
#include <memory>

namespace tembra {

// Called after each step on the file system with the step's name, so that tests can interfere there.
using TrashSteps = std::function<void(const char *step)>;

// One open Trash folder: "files" holds what was trashed, "info" what is to be known about it. Any thread.
class TrashFolder {
public:
    // Both make the folder when there is none. `home` takes the path of the user's own Trash; `ofVolume` the
    // volume's own for files in the open folder, refusing what somebody else may have put in its place.
    [[nodiscard]] static Result<std::shared_ptr<const TrashFolder>> home(const QByteArray &path);
    [[nodiscard]] static Result<std::shared_ptr<const TrashFolder>> ofVolume(int folder);

    [[nodiscard]] const MountKey &mount() const { return m_mount; }
    [[nodiscard]] int files() const { return m_files.number(); }
    [[nodiscard]] QByteArray pathOf(const QByteArray &name) const { return m_path + "/files/" + name; }
    // Whether it still is where it was opened, and can be written to.
    [[nodiscard]] bool isUsable() const;

    // Takes the file in; gives its name here.
    [[nodiscard]] Result<QByteArray> receive(const HeldEntry &entry, Instant deletedAt,
                                             const TrashSteps &steps) const;
    void removeInfo(const QByteArray &name) const;

private:
    TrashFolder() = default;
    [[nodiscard]] static Result<std::shared_ptr<const TrashFolder>> open(const Descriptor &folder,
                                                                         const QByteArray &top);
    // What .trashinfo tells as the place of a file.
    [[nodiscard]] Result<QByteArray> originalPath(const HeldEntry &entry) const;
    // 0 or the errno, and then nothing is left of it.
    [[nodiscard]] int makeInfo(const QByteArray &name, const QByteArray &content,
                               const TrashSteps &steps) const;

    QByteArray m_path;
    // The volume's topmost folder, empty in the home Trash: paths are told relative to it.
    QByteArray m_top;
    Descriptor m_files;
    Descriptor m_info;
    MountKey m_mount;
    qsizetype m_nameLimit = 0;
};

} // namespace tembra
