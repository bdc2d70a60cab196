#include "editor/documents/EditorFileCheck.h"

#include "imaging/Sha256.h"

#include <cerrno>

namespace tembra {

namespace {

using Finding = EditorFileCheck::Finding;

bool isMissing(const Error &error) {
    return error.domain == posixErrorDomain && (error.code == ENOENT || error.code == ENOTDIR);
}

// A folder that is not for looking at, such as the Trash.
bool isHidden(const QString &path) {
    return path.contains(QStringLiteral("/."));
}

QString whereItIs(const ScreenshotEditLoaded &loaded, const FileFactsReader &files) {
    const auto facts = files.facts(loaded.path);
    if (facts || !isMissing(facts.error()) || !loaded.reference)
        return loaded.path;
    const auto found = loaded.reference->path();
    return found && (isHidden(loaded.path) || !isHidden(*found)) ? *found : loaded.path;
}

} // namespace

EditorFileCheck EditorFileCheck::of(const ScreenshotEditLoaded &loaded,
                                    const std::optional<FileVersion> &seen, const FileFactsReader &files,
                                    const FileCoordinator &coordinator) {
    const QString path = whereItIs(loaded, files);
    const auto facts = files.facts(path);
    if (!facts)
        return {isMissing(facts.error()) ? Finding::gone : Finding::unknown, loaded.path, {}};
    const FileVersion version = versionOf(*facts);
    if (version == seen)
        return {Finding::asSeen, path, version};
    if (facts->kind != FileKind::regular)
        return {Finding::changed, path, version};
    const auto bytes = coordinator.read(path);
    if (!bytes)
        return {Finding::unknown, path, {}};
    return {sha256Hex(*bytes) == loaded.expectedHash ? Finding::asSaved : Finding::changed, path, version};
}

FileVersion EditorFileCheck::versionOf(const FileFacts &facts) {
    return {.inode = facts.resource ? facts.resource->inode : 0,
            .size = facts.size,
            .modifiedAt = facts.modifiedAt,
            .changedAt = facts.changedAt};
}

} // namespace tembra
