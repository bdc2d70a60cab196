#include "tray/ClipboardInspector.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace tembra {

namespace {

// Nothing is at the path; other errors tell that it cannot be reached.
bool isAbsence(const Error &error) {
    return error.domain == posixErrorDomain && (error.code == ENOENT || error.code == ENOTDIR);
}

bool isLocal(const ClipboardEntry &entry) {
    return !entry.volume || entry.volume->isLocal;
}

bool isBeneath(const QString &path, const Volume &volume) {
    const QString &top = volume.mountPoint;
    return path == top || path.startsWith(top.endsWith(u'/') ? top : top + u'/');
}

// A path that links lead along tells nothing of where the file is on its volume.
QString withoutLinksAbove(const QString &path) {
    const QFileInfo file(path);
    const QString folder = file.canonicalPath();
    return folder.isEmpty() ? path : QDir(folder).filePath(file.fileName());
}

// Files of one folder are on one volume; a folder in it can be another one's mount point.
bool isBeside(const QString &path, const FileFacts &facts, const ClipboardEntry &neighbour) {
    const qsizetype slash = path.lastIndexOf(u'/');
    const QString &other = neighbour.lastKnownPath;
    const auto resource = neighbour.identity.resource();
    return facts.kind == FileKind::regular && facts.resource && resource &&
           facts.resource->volume == resource->volume && neighbour.volume &&
           neighbour.volume->id == resource->volume && neighbour.volume->mountPoint != other &&
           other.lastIndexOf(u'/') == slash &&
           QStringView(other).first(slash) == QStringView(path).first(slash);
}

} // namespace

ClipboardInspector::ClipboardInspector(const FileFactsReader &files, const FileReferences &references,
                                       const Volumes &volumes, const StandardFolders &folders)
    : m_files(files),
      m_references(references),
      m_volumes(volumes),
      m_trash(folders.trash),
      m_home(folders.home) {}

ClipboardEntry ClipboardInspector::entryFor(const QString &path, const FileFacts &facts,
                                            const ClipboardEntry *neighbour) const {
    ClipboardEntry entry{.id = QUuid::createUuid(),
                         .originalPath = path,
                         .reference = m_references.hold(path),
                         .identity = ScreenshotFileIdentity::of(path, facts),
                         .lastKnownPath = path,
                         .isFolder = facts.kind == FileKind::directory,
                         .modifiedAt = facts.modifiedAt};
    if (neighbour && isBeside(path, facts, *neighbour))
        entry.volume = neighbour->volume;
    else if (const auto volume = m_volumes.volumeOf(path))
        entry.volume = *volume;
    if (entry.volume && !isBeneath(path, *entry.volume)) {
        entry.lastKnownPath = withoutLinksAbove(path);
        entry.identity = ScreenshotFileIdentity::of(entry.lastKnownPath, facts);
    }
    return entry;
}

ClipboardFileState ClipboardInspector::state(const ClipboardEntry &entry) const {
    if (isLocal(entry))
        return lookAt(entry);
    return entry.available ? ClipboardFileState::available : ClipboardFileState::unavailable;
}

ClipboardFileState ClipboardInspector::lookAt(const ClipboardEntry &entry) const {
    if (entry.reference) {
        if (const auto path = entry.reference->path())
            return *path != entry.lastKnownPath && isTrashed(*path) ? ClipboardFileState::removed
                                                                    : ClipboardFileState::available;
    }
    // Where the volume is not mounted, something else may be seen at the path.
    const auto facts = m_files.facts(entry.lastKnownPath);
    if (facts && isOnItsVolume(entry, *facts))
        return ClipboardFileState::available;
    const bool isDeleted = entry.reference && entry.reference->isDeleted();
    return isDeleted && !facts && isAbsence(facts.error()) ? ClipboardFileState::removed
                                                           : ClipboardFileState::unavailable;
}

bool ClipboardInspector::isOnItsVolume(const ClipboardEntry &entry, const FileFacts &facts) const {
    if (!entry.volume || (facts.resource && facts.resource == entry.identity.resource()))
        return true;
    const auto volume = m_volumes.volumeOf(entry.lastKnownPath);
    return volume && *volume == *entry.volume;
}

bool ClipboardInspector::isTrashed(const QString &path) const {
    return std::ranges::any_of(m_trash,
                               [&path](const QString &trash) { return path.startsWith(trash + u'/'); });
}

bool ClipboardInspector::needsSearch(const ClipboardEntry &entry, ClipboardFileState state) const {
    return !isLocal(entry) || (state == ClipboardFileState::unavailable && isLost(entry));
}

bool ClipboardInspector::isLost(const ClipboardEntry &entry) const {
    // Hidden by something, but still held: it comes back.
    if (entry.reference && !entry.reference->isDeleted())
        return false;
    const auto facts = m_files.facts(entry.lastKnownPath);
    const bool isGone = facts ? !isOnItsVolume(entry, *facts) : isAbsence(facts.error());
    return isGone && (!entry.volume || m_volumes.mountPointOf(*entry.volume));
}

ClipboardEntry ClipboardInspector::refreshed(ClipboardEntry entry) const {
    if (entry.reference) {
        if (const auto path = entry.reference->path(); path && *path != entry.lastKnownPath)
            return rebound(std::move(entry), *path);
    }
    const QString path = entry.lastKnownPath;
    const auto facts = m_files.facts(path);
    if (!facts)
        return entry;
    if (ScreenshotFileIdentity::of(path, *facts) == entry.identity) {
        entry.modifiedAt = facts->modifiedAt;
        return entry;
    }
    entry.reference = m_references.hold(path);
    return rebound(std::move(entry), path);
}

ClipboardEntry ClipboardInspector::rebound(ClipboardEntry entry, const QString &path) const {
    entry.lastKnownPath = path;
    if (const auto facts = m_files.facts(path)) {
        entry.identity = ScreenshotFileIdentity::of(path, *facts);
        entry.isFolder = facts->kind == FileKind::directory;
        entry.modifiedAt = facts->modifiedAt;
    }
    if (const auto volume = m_volumes.volumeOf(path))
        entry.volume = *volume;
    return entry;
}

ClipboardInspector::Found ClipboardInspector::search(const ClipboardEntry &entry) const {
    const ClipboardFileState state = lookAt(entry);
    if (state != ClipboardFileState::unavailable)
        return {state, state == ClipboardFileState::available ? refreshed(entry) : entry};
    const auto mountPoint = entry.volume ? m_volumes.mountPointOf(*entry.volume) : QString();
    if (!mountPoint)
        return {ClipboardFileState::unavailable, entry};
    if (const auto path = find(entry, *mountPoint))
        return {ClipboardFileState::available, rebound(entry, *path)};
    const auto facts = m_files.facts(entry.lastKnownPath);
    const bool isGone = facts || isAbsence(facts.error());
    return {isGone ? ClipboardFileState::removed : ClipboardFileState::unavailable, entry};
}

std::optional<QString> ClipboardInspector::find(const ClipboardEntry &entry,
                                                const QString &mountPoint) const {
    QString expected = entry.lastKnownPath;
    const bool isElsewhere = entry.volume && mountPoint != entry.volume->mountPoint;
    if (isElsewhere && isBeneath(expected, *entry.volume)) {
        expected = QDir::cleanPath(mountPoint + u'/' + expected.sliced(entry.volume->mountPoint.size()));
        if (m_files.facts(expected))
            return expected;
    }
    const auto resource = entry.identity.resource();
    if (!resource)
        return std::nullopt;
    if (auto path = m_references.path(*resource, expected))
        return path;
    if (mountPoint.isEmpty())
        return std::nullopt;
    // The user's files before the system's, which are too many to look through.
    const bool isUsers = !m_home.isEmpty() && expected.startsWith(m_home + u'/');
    const bool holdsHome = m_home.startsWith(mountPoint);
    return m_references.pathBeneath(isUsers && holdsHome ? m_home : mountPoint, *resource);
}

} // namespace tembra
