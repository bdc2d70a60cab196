#include "screenshots/ScreenshotFileIdentity.h"

#include <QDir>

namespace tembra {

ScreenshotFileIdentity ScreenshotFileIdentity::of(const QString &path, const FileFacts &facts) {
    if (facts.resource)
        return {Resource{*facts.resource, facts.createdAt}};
    return {Path{QDir::cleanPath(path), facts.createdAt}};
}

std::optional<FileResource> ScreenshotFileIdentity::resource() const {
    const auto *file = std::get_if<Resource>(&value);
    return file ? std::optional(file->resource) : std::nullopt;
}

size_t qHash(const ScreenshotFileIdentity &identity, size_t seed) {
    const auto createdAt = [](const std::optional<Instant> &date) {
        return date ? date->time_since_epoch().count() : 0;
    };
    if (const auto *path = std::get_if<ScreenshotFileIdentity::Path>(&identity.value))
        return qHashMulti(seed, path->path, createdAt(path->createdAt));
    const auto &file = std::get<ScreenshotFileIdentity::Resource>(identity.value);
    return qHashMulti(seed, file.resource, createdAt(file.createdAt));
}

} // namespace tembra
