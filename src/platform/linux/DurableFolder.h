#pragma once

#include "base/Result.h"
#include "platform/linux/Descriptor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <sys/types.h>

namespace tembra {

// An open folder in which files are made, renamed and removed so that it lasts. Names are those of its own
// entries; links are not followed. Any thread.
class DurableFolder {
public:
    [[nodiscard]] static Result<DurableFolder> open(const QByteArray &path);

    [[nodiscard]] int number() const { return m_folder.number(); }
    // The regular file of that name, for reading. Errors: FileCoordinator's, else "POSIX".
    [[nodiscard]] Result<Descriptor> openFile(const QByteArray &name) const;
    // A new file for this user alone, for writing.
    [[nodiscard]] Result<Descriptor> createFile(const QByteArray &name) const;
    [[nodiscard]] Result<void> rename(const QByteArray &from, const QByteArray &to) const;
    [[nodiscard]] Result<void> exchange(const QByteArray &one, const QByteArray &other) const;
    [[nodiscard]] Result<void> remove(const QByteArray &name) const;
    // Waits until its entries are on the disk.
    [[nodiscard]] Result<void> sync() const;

private:
    explicit DurableFolder(Descriptor folder) : m_folder(std::move(folder)) {}

    Descriptor m_folder;
};

// A file's name and the path of its folder, in bytes.
struct FilePlace {
    explicit FilePlace(const QString &path);

    QByteArray folder;
    QByteArray name;
};

// Everything that an open file holds.
[[nodiscard]] Result<QByteArray> readWhole(int file);
[[nodiscard]] Result<void> writeWhole(int file, QByteArrayView bytes);
// Waits until the content of a file is on the disk.
[[nodiscard]] Result<void> syncFile(int file);

} // namespace tembra
