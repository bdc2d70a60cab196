#include "editor/chrome/EditorSidebarThumbnails.h"

#include <algorithm>

namespace tembra {

namespace {

// Enough to fill a tile with a picture of any usual aspect.
constexpr double side = 128;

} // namespace

void EditorSidebarThumbnails::want(std::span<const EditorSidebarItem> items, double scale) {
    std::erase_if(m_pending, [&](const auto &entry) {
        return std::ranges::none_of(items, [&](const EditorSidebarItem &item) {
            return item.path == entry.first && Version{item.revision, scale} == entry.second.version;
        });
    });
    for (const EditorSidebarItem &item : items) {
        const Version version{item.revision, scale};
        const Kept *kept = m_kept.object(item.path);
        if ((!kept || kept->version != version) && !m_pending.contains(item.path))
            request(item.path, version);
    }
}

void EditorSidebarThumbnails::request(const QString &path, const Version &version) {
    // In the list first: the answer may come at once.
    m_pending[path].version = version;
    auto handle = m_thumbnails.request(
        path, side, version.scale,
        [this, path, version](const Result<Thumbnails::Thumbnail> &answer) { take(path, version, answer); });
    if (const auto entry = m_pending.find(path); entry != m_pending.end())
        entry->second.request = std::move(handle);
}

void EditorSidebarThumbnails::take(const QString &path, const Version &version,
                                   const Result<Thumbnails::Thumbnail> &answer) {
    m_pending.erase(path);
    // What cannot be shown is not asked for again until it changes.
    auto kept = std::make_unique<Kept>(Kept{version, {}});
    if (answer && answer->isThumbnail)
        kept->image = answer->image;
    m_kept.insert(path, kept.release());
    if (onChanged)
        onChanged(path);
}

QImage EditorSidebarThumbnails::image(const QString &path) const {
    const Kept *kept = m_kept.object(path);
    return kept ? kept->image : QImage();
}

} // namespace tembra
