#pragma once

#include "platform/Trash.h"
#include "platform/linux/BeneathFolder.h"

#include <QByteArray>

namespace tembra {

// A path taken apart as the guard of a move wants it: the folder to open first, the way from there to the
// folder of the file, and the file's name.
struct TrashPlace {
    QByteArray root;
    // Nothing but a plain path is possible without a guard's root.
    bool isGuarded = false;
    QByteArray way;
    QByteArray name;

    // EXDEV if the path leads out of the guard's root by its very wording, EINVAL if it names no file.
    [[nodiscard]] static Result<TrashPlace> of(const QString &path, const Trash::Guard &guard);
    // Opens the file's folder.
    [[nodiscard]] Result<Descriptor> openFolder(MissingFolders missing) const;
    // Whether the way still leads to this open folder.
    [[nodiscard]] bool leadsTo(int folder) const;
};

} // namespace tembra
