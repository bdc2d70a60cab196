#include "platform/linux/DiscardedFile.h"

#include "platform/linux/ExclusiveRename.h"
#include "platform/linux/PosixError.h"
#include "platform/linux/ReadLease.h"

#include <algorithm>
#include <climits>

namespace tembra {

namespace {

QByteArray copyName(const QByteArray &original, int number) {
    const qsizetype dot = original.lastIndexOf('.');
    const QByteArray extension = dot > 0 ? original.mid(dot) : QByteArray();
    const QByteArray ending =
        " copy" + (number > 0 ? ' ' + QByteArray::number(number) : QByteArray()) + extension;
    const QByteArray stem = dot > 0 ? original.left(dot) : original;
    return stem.left(std::max<qsizetype>(NAME_MAX - ending.size(), 0)) + ending;
}

Result<void> keep(const DurableFolder &folder, const QByteArray &name, const QByteArray &original) {
    int code = EEXIST;
    for (int number = 0; code == EEXIST; ++number)
        code = renameExclusively(folder.number(), name, folder.number(), copyName(original, number));
    return code == 0 ? Result<void>() : failure(posixError(code));
}

} // namespace

Result<void> discardOrKeep(const DurableFolder &folder, const QByteArray &name, const QByteArray &original,
                           const FileCoordinator::ContentCheck &isKnown) {
    const auto file = folder.openFile(name);
    if (!file)
        return file.error() == posixError(ENOENT) ? Result<void>() : keep(folder, name, original);
    // Held until it has no name any more.
    const ReadLease lease(file->number());
    const auto content = readWhole(file->number());
    if (!content || !isKnown(*content) || lease.hasWriter())
        return keep(folder, name, original);
    return folder.remove(name);
}

} // namespace tembra
