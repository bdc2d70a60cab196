#include "platform/linux/LinuxFileCoordinator.h"

#include "base/FilePath.h"
#include "platform/linux/ContentSwap.h"
#include "platform/linux/DiscardedFile.h"
#include "platform/linux/DurableFolder.h"
#include "platform/linux/ExclusiveRename.h"
#include "platform/linux/FileCoordinatorError.h"
#include "platform/linux/FileLikeness.h"
#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/PosixError.h"

#include <QUuid>

#include <sys/stat.h>

namespace tembra {

namespace {

constexpr mode_t ownerOnly = S_IRWXU;

// Makes a new file with the bytes and what `finish` adds to it, on the disk; none on failure. Its name is not
// there yet.
template <class Finish>
Result<void> writeNew(const DurableFolder &folder, const QByteArray &name, QByteArrayView bytes,
                      const Finish &finish) {
    const auto file = folder.createFile(name);
    if (!file)
        return failure(file.error());
    auto outcome = writeWhole(file->number(), bytes);
    if (outcome)
        outcome = finish(file->number());
    if (outcome)
        outcome = syncFile(file->number());
    if (!outcome)
        (void)folder.remove(name);
    return outcome;
}

Result<void> finishLike(int file, const QString &like) {
    const FilePlace place(like);
    return DurableFolder::open(place.folder)
        .and_then([&](const DurableFolder &folder) { return folder.openFile(place.name); })
        .and_then([=](const Descriptor &model) { return makeLike(file, model.number()); });
}

Result<void> makeOwnersAlone(const QByteArray &folder) {
    struct stat status {};
    if (::stat(folder.constData(), &status) != 0)
        return failure(posixError());
    if (!S_ISDIR(status.st_mode))
        return failure(posixError(ENOTDIR));
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0 && ::chmod(folder.constData(), ownerOnly) != 0)
        return failure(posixError());
    return {};
}

// With the folders above it.
Result<void> makeFolder(const QByteArray &path) {
    if (::mkdir(path.constData(), ownerOnly) != 0) {
        if (errno != ENOENT)
            return errno == EEXIST ? Result<void>() : failure(posixError());
        const QByteArray parent = path.left(path.lastIndexOf('/'));
        if (parent.isEmpty())
            return failure(posixError(ENOENT));
        if (auto made = makeFolder(parent); !made)
            return made;
        if (::mkdir(path.constData(), ownerOnly) != 0 && errno != EEXIST)
            return failure(posixError());
    }
    return DurableFolder::open(path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1)))
        .and_then([](const DurableFolder &parent) { return parent.sync(); });
}

} // namespace

Result<QByteArray> LinuxFileCoordinator::read(const QString &path) const {
    const FilePlace place(path);
    return DurableFolder::open(place.folder)
        .and_then([&](const DurableFolder &folder) { return folder.openFile(place.name); })
        .and_then([](const Descriptor &file) { return readWhole(file.number()); });
}

Result<void> LinuxFileCoordinator::makePrivateFolder(const QString &path) const {
    QByteArray bytes = pathBytes(path);
    while (bytes.size() > 1 && bytes.endsWith('/'))
        bytes.chop(1);
    return makeFolder(bytes).and_then([&] { return makeOwnersAlone(bytes); });
}

Result<void> LinuxFileCoordinator::writeAtomically(const QString &path, QByteArrayView bytes) const {
    const FilePlace place(path);
    const auto folder = DurableFolder::open(place.folder);
    if (!folder)
        return failure(folder.error());
    const QByteArray temporary =
        temporaryPrefix.toLatin1() + QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    auto outcome = writeNew(*folder, temporary, bytes, [](int) { return Result<void>(); });
    if (!outcome)
        return outcome;
    outcome = folder->rename(temporary, place.name);
    if (!outcome) {
        (void)folder->remove(temporary);
        return outcome;
    }
    return folder->sync();
}

Result<void> LinuxFileCoordinator::remove(const QString &path) const {
    const FilePlace place(path);
    const auto folder = DurableFolder::open(place.folder);
    if (!folder)
        return folder.error() == posixError(ENOENT) ? Result<void>() : failure(folder.error());
    auto removed = folder->remove(place.name);
    if (!removed && removed.error() != posixError(ENOENT))
        return removed;
    return folder->sync();
}

Result<void> LinuxFileCoordinator::writeTemporary(const QString &path, QByteArrayView bytes,
                                                  const QString &like,
                                                  const std::optional<Instant> &createdAt) const {
    const FilePlace place(path);
    return DurableFolder::open(place.folder).and_then([&](const DurableFolder &folder) {
        return writeNew(folder, place.name, bytes, [&](int file) {
            // A file system that keeps no attributes keeps no such date either.
            if (createdAt)
                static_cast<void>(recordCreationDate(file, *createdAt));
            return finishLike(file, like);
        });
    });
}

Result<void> LinuxFileCoordinator::replace(const QString &path, const QString &temporary,
                                           QByteArrayView bytes, const ContentCheck &isExpected) const {
    const FilePlace place(path);
    const FilePlace temporaryPlace(temporary);
    return DurableFolder::open(place.folder).and_then([&](const DurableFolder &folder) {
        return ContentSwap(folder, place.name, temporaryPlace.name, bytes, isExpected).run();
    });
}

Result<void> LinuxFileCoordinator::clearTemporary(const QString &path, const QString &temporary,
                                                  const ContentCheck &isKnown) const {
    const FilePlace place(temporary);
    return DurableFolder::open(place.folder).and_then([&](const DurableFolder &folder) {
        return discardOrKeep(folder, place.name, FilePlace(path).name, isKnown).and_then([&] {
            return folder.sync();
        });
    });
}

Result<void> LinuxFileCoordinator::moveIfUnchanged(const QString &from, const QString &to,
                                                   const ContentCheck &isExpected) const {
    const auto content = read(from);
    if (!content)
        return failure(content.error());
    if (!isExpected(*content))
        return failure(fileCoordinatorError(changed));
    const FilePlace fromPlace(from);
    const FilePlace toPlace(to);
    const auto fromFolder = DurableFolder::open(fromPlace.folder);
    const auto toFolder = DurableFolder::open(toPlace.folder);
    if (!fromFolder || !toFolder)
        return failure((fromFolder ? toFolder : fromFolder).error());
    const int code =
        renameExclusively(fromFolder->number(), fromPlace.name, toFolder->number(), toPlace.name);
    if (code != 0)
        return failure(code == EEXIST ? fileCoordinatorError(exists) : posixError(code));
    // If this does not last the file has its old name again, and nothing is lost.
    (void)toFolder->sync();
    (void)fromFolder->sync();
    return {};
}

} // namespace tembra
