#include "platform/linux/LinuxTrash.h"

#include "platform/linux/ExclusiveRename.h"
#include "platform/linux/PosixError.h"
#include "platform/linux/TrashInfo.h"
#include "platform/linux/TrashPlace.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <unistd.h>

namespace tembra {

namespace {

QString fileName(const QString &path) {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString sentence(Trash::ErrorCode code) {
    switch (code) {
    case Trash::changed:
        return QCoreApplication::translate("Trash", "“%1” has changed or is no longer there.");
    case Trash::outsideRoot:
        return QCoreApplication::translate("Trash", "The way to “%1” leads out of its folder.");
    case Trash::noTrash:
        return QCoreApplication::translate("Trash", "The disk that holds “%1” has no Trash.");
    case Trash::notInTrash:
        return QCoreApplication::translate("Trash", "“%1” is no longer in the Trash.");
    case Trash::occupied:
        return QCoreApplication::translate("Trash", "Another file is now where “%1” was.");
    case Trash::folderUnavailable:
        return QCoreApplication::translate("Trash", "The folder that “%1” was in cannot be reached.");
    }
    return QString();
}

tl::unexpected<Error> trashFailure(Trash::ErrorCode code, const QString &path) {
    return failure({Trash::errorDomain, code, sentence(code).arg(fileName(path)), {}});
}

bool isNoRoom(int code) {
    return code == ENOSPC || code == EDQUOT;
}

tl::unexpected<Error> moveFailure(int code, const HeldEntry &entry, const QString &path) {
    if (code == EXDEV)
        return trashFailure(Trash::noTrash, path);
    if (!entry.isAt(entry.folder(), entry.name()))
        return trashFailure(Trash::changed, path);
    const QString text =
        isNoRoom(code) ? QCoreApplication::translate("Trash", "There is no room to move “%1” to the Trash.")
                       : QCoreApplication::translate("Trash", "“%1” could not be moved to the Trash: %2.");
    const QString name = fileName(path);
    const QString message = isNoRoom(code) ? text.arg(name) : text.arg(name, posixError(code).message);
    return failure({posixErrorDomain, code, message, {}});
}

tl::unexpected<Error> restoreFailure(int code, const HeldEntry &entry, const QString &path) {
    if (!entry.isAt(entry.folder(), entry.name()))
        return trashFailure(Trash::notInTrash, path);
    if (code == EEXIST)
        return trashFailure(Trash::occupied, path);
    if (code == EXDEV || code == ENOENT)
        return trashFailure(Trash::folderUnavailable, path);
    const QString text = QCoreApplication::translate("Trash", "“%1” could not be moved back: %2.");
    return failure({posixErrorDomain, code, text.arg(fileName(path), posixError(code).message), {}});
}

// What it means that a folder could not be opened.
tl::unexpected<Error> folderFailure(const Error &error, const QString &path, Trash::ErrorCode otherwise) {
    const bool leadsOut = error.code == EXDEV || error.code == ELOOP;
    return trashFailure(leadsOut ? Trash::outsideRoot : otherwise, path);
}

} // namespace

LinuxTrash::LinuxTrash(const LinuxFileFactsReader &reader, const QString &homeTrash, WallClock now,
                       TrashSteps onStep)
    : m_reader(reader),
      m_home(QFile::encodeName(homeTrash)),
      m_now(std::move(now)),
      m_onStep(std::move(onStep)) {}

bool LinuxTrash::isExpected(const HeldEntry &entry, const Guard &guard) const {
    const auto facts = entry.facts(m_reader);
    return facts && (!guard.isExpected || guard.isExpected(*facts));
}

Result<LinuxTrash::Received> LinuxTrash::receive(const HeldEntry &entry) {
    const auto into = [&](const std::shared_ptr<const TrashFolder> &trash) {
        return trash->receive(entry, m_now(), m_onStep).map([&](const QByteArray &name) {
            return Received{trash, name};
        });
    };
    if (const auto home = m_home.forFilesIn(entry.folder())) {
        auto received = into(*home);
        // Quotas and the like can divide what looks like one file system.
        if (received || received.error().code != EXDEV)
            return received;
    }
    const auto volume = TrashFolder::ofVolume(entry.folder());
    if (!volume)
        return failure(isNoRoom(volume.error().code) ? volume.error() : posixError(EXDEV));
    return into(*volume);
}

Result<QString> LinuxTrash::moveToTrash(const QString &path, const Guard &guard) {
    const auto place = TrashPlace::of(path, guard);
    if (!place)
        return folderFailure(place.error(), path, changed);
    auto folder = place->openFolder(MissingFolders::fail);
    if (!folder)
        return folderFailure(folder.error(), path, changed);
    const auto entry = HeldEntry::open(*std::move(folder), place->name);
    if (!entry || !isExpected(*entry, guard))
        return trashFailure(changed, path);
    m_onStep("asked");

    const auto received = receive(*entry);
    if (!received)
        return moveFailure(received.error().code, *entry, path);
    const auto &[trash, name] = *received;
    if (entry->isAt(trash->files(), name) && place->leadsTo(entry->folder()))
        return QFile::decodeName(trash->pathOf(name));
    // Should the old name be taken again, what was moved stays in the Trash with its entry.
    if (renameExclusively(trash->files(), name, entry->folder(), entry->name()) == 0)
        trash->removeInfo(name);
    return trashFailure(changed, path);
}

Result<void> LinuxTrash::restore(const QString &trashPath, const QString &originalPath, const Guard &guard) {
    const auto stored = TrashPlace::of(trashPath, {});
    if (!stored || !stored->root.endsWith("/files/"))
        return trashFailure(notInTrash, originalPath);
    auto files = stored->openFolder(MissingFolders::fail);
    if (!files)
        return trashFailure(notInTrash, originalPath);
    const auto entry = HeldEntry::open(*std::move(files), stored->name);
    if (!entry || !isExpected(*entry, guard))
        return trashFailure(notInTrash, originalPath);
    m_onStep("asked");

    const auto place = TrashPlace::of(originalPath, guard);
    if (!place)
        return folderFailure(place.error(), originalPath, folderUnavailable);
    const auto folder = place->openFolder(MissingFolders::areMade);
    if (!folder)
        return folderFailure(folder.error(), originalPath, folderUnavailable);
    m_onStep("folderOpened");
    if (const int code = renameExclusively(entry->folder(), entry->name(), folder->number(), place->name))
        return restoreFailure(code, *entry, originalPath);
    m_onStep("movedBack");
    const bool isRightFile = entry->isAt(folder->number(), place->name);
    if (!isRightFile || !place->leadsTo(folder->number())) {
        // Should something have taken its place in the Trash, it is better here than nowhere.
        static_cast<void>(renameExclusively(folder->number(), place->name, entry->folder(), entry->name()));
        return trashFailure(isRightFile ? folderUnavailable : notInTrash, originalPath);
    }
    ::unlinkat(entry->folder(), ("../info/" + entry->name() + trashInfoSuffix).constData(), 0);
    m_onStep("infoRemoved");
    return {};
}

} // namespace tembra
