#include "screenshots/ScreenshotFileIdentity.h"

namespace tembra {

size_t qHash(const ScreenshotFileIdentity &identity, size_t seed) {
    const auto createdAt = [](const std::optional<Instant> &date) {
        return date ? date->time_since_epoch().count() : 0;
    };
    if (const auto *path = std::get_if<ScreenshotFileIdentity::Path>(&identity.value))
        return qHashMulti(seed, path->path, createdAt(path->createdAt));
    const auto &file = std::get<ScreenshotFileIdentity::Resource>(identity.value);
    return qHashMulti(seed, file.resource.volume, file.resource.inode, file.resource.generation,
                      createdAt(file.createdAt));
}

} // namespace tembra
