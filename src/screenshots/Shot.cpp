#include "screenshots/Shot.h"

#include "platform/FileFacts.h"
#include "platform/FileReferences.h"
#include "platform/FileVersion.h"

namespace tembra {

namespace {

bool isFileOf(const Shot &shot, const QString &path, const FileFactsReader &facts) {
    const auto known = facts.facts(path);
    return known && ScreenshotFileIdentity::of(path, *known) == shot.identity;
}

} // namespace

QString Shot::currentPath(const FileFactsReader &facts, const FileReferences &references) const {
    if (isFileOf(*this, location, facts))
        return location;
    const auto *file = std::get_if<ScreenshotFileIdentity::Resource>(&identity.value);
    if (!file)
        return {};
    const auto found = references.path(file->resource, location);
    return found && isFileOf(*this, *found, facts) ? *found : QString();
}

QString Shot::revision(std::uint64_t size, Instant modifiedAt) {
    return QStringLiteral("%1-%2").arg(size, 0, 16).arg(modifiedAt.time_since_epoch().count(), 0, 16);
}

QString Shot::stampOf(const FileVersion &version) {
    return QStringLiteral("%1-%2-%3")
        .arg(revision(version.size, version.modifiedAt))
        .arg(version.changedAt.time_since_epoch().count(), 0, 16)
        .arg(version.inode, 0, 16);
}

bool Shot::hasRevision(QStringView revision) const {
    return stamp.startsWith(revision) && QStringView(stamp).sliced(revision.size()).startsWith(u'-');
}

} // namespace tembra
