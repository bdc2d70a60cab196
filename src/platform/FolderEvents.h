#pragma once

#include "base/Result.h"

#include <QSet>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tembra {

// One event of a folder tree. The flag bits are those of the FSEvents interface of macOS, on every platform.
struct TreeEvent {
    enum Flag : std::uint32_t {
        mustScanSubdirectories = 0x00000001,
        userDropped = 0x00000002,
        kernelDropped = 0x00000004,
        eventIdsWrapped = 0x00000008,
        historyDone = 0x00000010,
        rootChanged = 0x00000020,
        mount = 0x00000040,
        unmount = 0x00000080,
        itemCreated = 0x00000100,
        itemRemoved = 0x00000200,
        itemInodeMetaModified = 0x00000400,
        itemRenamed = 0x00000800,
        itemModified = 0x00001000,
        itemChangeOwner = 0x00004000,
        itemXattrModified = 0x00008000,
        itemIsFile = 0x00010000,
        itemIsDirectory = 0x00020000,
        itemIsSymlink = 0x00040000,
        itemIsHardlink = 0x00100000,
    };

    QString path;
    std::uint32_t flags = 0;
    std::uint64_t id = 0;

    bool operator==(const TreeEvent &) const = default;
};

// Tells what happens in folders. Main thread: calls, callbacks and handles. Dropping a handle ends its
// events, also from within a callback.
class FolderEvents {
public:
    enum DirectoryEvent : std::uint32_t {
        write = 0x1,
        extend = 0x2,
        attrib = 0x4,
        rename = 0x8,
        remove = 0x10,
        revoke = 0x20,
    };

    class Handle {
    public:
        virtual ~Handle() = default;
    };

    virtual ~FolderEvents() = default;
    // The folder itself: an entry written, its attributes, its renaming, deletion or unmounting (a set of
    // DirectoryEvent bits). Error: "POSIX" with the errno when the folder cannot be opened or watched.
    [[nodiscard]] virtual Result<std::unique_ptr<Handle>>
    watchDirectory(const QString &folder, std::function<void(std::uint32_t)> onEvents) = 0;
    // As above, but of the entries only those with these names count.
    [[nodiscard]] virtual Result<std::unique_ptr<Handle>>
    watchEntries(const QString &folder, const QSet<QString> &names,
                 std::function<void(std::uint32_t)> onEvents) = 0;
    // The folder and, when `recursive`, everything below it; events of one `latency` arrive together, in
    // order, with rising ids. Where no more watches are to be had the stream reports mustScanSubdirectories |
    // userDropped once and goes on with those it has.
    [[nodiscard]] virtual Result<std::unique_ptr<Handle>>
    watchTree(const QString &folder, bool recursive, std::chrono::nanoseconds latency,
              std::function<void(std::vector<TreeEvent>)> onEvents) = 0;
};

} // namespace tembra
