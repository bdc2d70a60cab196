#pragma once

#include "base/Clocks.h"
#include "base/Result.h"
#include "updates/UpdateVersion.h"

#include <QByteArray>
#include <QUrl>

#include <optional>
#include <vector>

namespace tembra {

// A version that the feed offers for one system.
struct AppcastItem {
    UpdateVersion version;
    // As the user reads it.
    QString shownVersion;
    QUrl file;
    qint64 length = 0;
    // Ed25519 over the bytes of the file, in base64.
    QByteArray signature;
    // "linux", or with an architecture "linux-x86_64"; other systems by their names.
    QString system;
    // Empty where there are none.
    QUrl releaseNotes;
    // Empty where any will do.
    QString minimumSystemVersion;

    bool operator==(const AppcastItem &) const = default;
};

// What an update must fit.
struct UpdateTarget {
    UpdateVersion current;
    QString architecture;
    // The kernel's.
    QString systemVersion;
};

// The feed of the versions there are: RSS 2.0 with the attributes of appcasts (docs/updates.md). Items that
// lack what an update needs, or that nothing here could use, are passed over. Any thread.
struct Appcast {
    static constexpr qint64 mostBytes = qint64(1024) * 1024;

    // Error: the one sentence that says that the feed is broken.
    [[nodiscard]] static Result<Appcast> parse(const QByteArray &feed);
    // The newest of those that are newer than the current version.
    [[nodiscard]] std::optional<AppcastItem> bestFor(const UpdateTarget &target) const;

    std::vector<AppcastItem> items;
    // When the list was made, in whole seconds ("pubDate" of the channel, RFC 2822).
    std::optional<Instant> publishedAt;
};

} // namespace tembra
