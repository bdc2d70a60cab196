#pragma once

#include "base/Result.h"
#include "platform/FileFacts.h"

#include <QString>

#include <functional>

namespace tembra {

// Moves files into the desktop's Trash, where every file manager shows them, and back from there. A file is
// in exactly one of the two places at any moment, whatever ends the program: it is never copied and nothing
// is ever overwritten. Any thread. Errors have the domain "Tembra.Trash" with the codes below, or are of the
// system.
class Trash {
public:
    // What must hold for the very file that is moved, also when names change while it is being moved.
    struct Guard {
        // The file lies beneath this folder, and the way from there leads through no link and onto no other
        // file system. Empty: it may lie anywhere.
        QString root;
        // Whether the file is the one that is meant. Not called: any file is.
        std::function<bool(const FileFacts &)> isExpected;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.Trash");
    enum ErrorCode {
        // There is no file at the path, or another one than expected.
        changed = 1,
        // The way to the file leads out of the guard's root.
        outsideRoot,
        // The file's volume has no Trash and none can be made there.
        noTrash,
        // The file is not where the Trash put it, or another one than expected is.
        notInTrash,
        // Something stands where the file is to come back to.
        occupied,
        // The folder that the file is to come back to cannot be reached.
        folderUnavailable,
    };

    virtual ~Trash() = default;
    // Gives the file's path in the Trash.
    [[nodiscard]] virtual Result<QString> moveToTrash(const QString &path, const Guard &guard) = 0;
    // Moves it back, with everything that belongs to it, and takes its entry out of the Trash. Missing
    // folders beneath the guard's root are made again.
    [[nodiscard]] virtual Result<void> restore(const QString &trashPath, const QString &originalPath,
                                               const Guard &guard) = 0;
};

} // namespace tembra
