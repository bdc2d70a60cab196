#pragma once

#include "editor/chrome/EditorSidebarItem.h"
#include "platform/Thumbnails.h"

#include <QCache>

#include <map>
#include <span>

namespace tembra {

// The pictures of the sidebar's tiles: asked for while a tile is in view, kept for a while after. Main
// thread.
class EditorSidebarThumbnails {
public:
    explicit EditorSidebarThumbnails(Thumbnails &thumbnails) : m_thumbnails(thumbnails) {}

    // A picture came for the path.
    std::function<void(const QString &path)> onChanged;

    // Asks for what these lack and gives up what was asked for others.
    void want(std::span<const EditorSidebarItem> items, double scale);
    // The last picture of the file, of an earlier revision until the new one is there; null where there is
    // none.
    [[nodiscard]] QImage image(const QString &path) const;

private:
    // What a picture is of.
    struct Version {
        QString revision;
        double scale = 1;

        bool operator==(const Version &) const = default;
    };
    struct Kept {
        Version version;
        QImage image;
    };
    struct Pending {
        Version version;
        std::unique_ptr<Thumbnails::Request> request;
    };

    void request(const QString &path, const Version &version);
    void take(const QString &path, const Version &version, const Result<Thumbnails::Thumbnail> &answer);

    static constexpr int countLimit = 160;

    Thumbnails &m_thumbnails;
    QCache<QString, Kept> m_kept{countLimit};
    std::map<QString, Pending> m_pending;
};

} // namespace tembra
