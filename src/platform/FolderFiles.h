#pragma once

#include "base/Result.h"
#include "platform/FileVersion.h"
#include "platform/OpenFile.h"

#include <QString>

#include <functional>
#include <memory>
#include <string_view>

namespace tembra {

// Lists folders and opens files. Any thread. Errors have the domain "POSIX" and the errno.
class FolderFiles {
public:
    // A regular file met while listing a folder; valid during the visit.
    class Listed {
    public:
        virtual ~Listed() = default;
        // Relative to the folder listed, in the file system's own bytes.
        [[nodiscard]] virtual std::string_view relativePath() const = 0;
        // Empty when the file has just gone.
        [[nodiscard]] virtual const FileVersion &version() const = 0;
        [[nodiscard]] virtual Result<std::unique_ptr<OpenFile>> open() const = 0;
    };
    enum class Subfolders {
        passedOver,
        // Entered unless something else is mounted there.
        onSameMount,
        entered
    };
    [[nodiscard]] static constexpr Subfolders enteredIf(bool enters) {
        return enters ? Subfolders::entered : Subfolders::passedOver;
    }
    // Whether the listing goes on.
    using Visit = std::function<bool(const Listed &)>;

    virtual ~FolderFiles() = default;
    // Opens a regular file; links are not followed, and what is no regular file is refused without waiting
    // for it.
    [[nodiscard]] virtual Result<std::unique_ptr<OpenFile>> open(const QString &path) const = 0;
    // Visits every regular file of the folder, and of its subfolders if they are entered, in no particular
    // order. Hidden entries are passed over; links are not followed, so the walk stays inside the folder. A
    // subfolder that cannot be read is passed over.
    [[nodiscard]] virtual Result<void> list(const QString &folder, Subfolders subfolders,
                                            const Visit &visit) const = 0;
};

} // namespace tembra
