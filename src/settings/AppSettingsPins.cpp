// Pins, and the screenshots that auto-clean spares after they came back from the Trash.

#include "base/MainThread.h"
#include "platform/Bookmarks.h"
#include "platform/UserDefaults.h"
#include "settings/AppSettings.h"
#include "settings/AutoCleanGrace.h"
#include "settings/SettingsKeys.h"

#include <algorithm>
#include <iterator>

namespace tembra {

void AppSettings::loadPins() {
    const auto bookmarks =
        m_defaults.dataArray(settingsKey::pinnedScreenshotBookmarks).value_or(QList<QByteArray>());
    for (const QByteArray &bookmark : bookmarks)
        m_pinnedScreenshots.push_back(resolvedPin(bookmark));
}

PinnedScreenshot AppSettings::resolvedPin(const QByteArray &bookmark) const {
    const auto resolved = m_functions.resolvePinnedBookmark(bookmark);
    if (resolved)
        return {bookmark, *resolved};
    return {.bookmark = bookmark, .isGone = resolved.error().code != Bookmarks::volumeAbsent};
}

void AppSettings::storePins() {
    QList<QByteArray> bookmarks;
    for (const PinnedScreenshot &pin : m_pinnedScreenshots)
        bookmarks.append(pin.bookmark);
    m_defaults.setDataArray(settingsKey::pinnedScreenshotBookmarks, bookmarks);
}

QSet<QString> AppSettings::pinnedScreenshotPaths() const {
    QSet<QString> paths;
    for (const PinnedScreenshot &pin : m_pinnedScreenshots) {
        if (pin.resolved)
            paths.insert(pin.resolved->path);
    }
    return paths;
}

QSet<FileResource> AppSettings::pinnedScreenshotFiles() const {
    QSet<FileResource> files;
    for (const PinnedScreenshot &pin : m_pinnedScreenshots) {
        if (pin.resolved && pin.resolved->reference)
            files.insert(*pin.resolved->reference);
        else if (const auto file = m_functions.bookmarkedFile(pin.bookmark))
            files.insert(*file);
    }
    return files;
}

int AppSettings::unavailablePinCount() const {
    return static_cast<int>(std::ranges::count_if(
        m_pinnedScreenshots, [](const PinnedScreenshot &pin) { return !pin.resolved && !pin.isGone; }));
}

Result<PinnedScreenshot> AppSettings::pin(const QString &path) const {
    const auto bookmark = m_functions.createBookmark(path);
    if (!bookmark)
        return failure(bookmark.error());
    PinnedScreenshot pin = resolvedPin(*bookmark);
    if (!pin.resolved)
        pin.resolved = PinnedScreenshot::Resolved{path, {}};
    return pin;
}

Result<void> AppSettings::setScreenshotsPinned(const QStringList &paths, bool pinned) {
    requireMainThread();
    std::vector<PinnedScreenshot> next = m_pinnedScreenshots;
    for (const QString &path : paths) {
        const auto isIt = [&path](const PinnedScreenshot &pin) {
            return pin.resolved && pin.resolved->path == path;
        };
        if (!pinned) {
            std::erase_if(next, isIt);
        } else if (std::ranges::none_of(next, isIt)) {
            const auto made = pin(path);
            if (!made)
                return failure(made.error());
            next.push_back(*made);
        }
    }
    if (next == m_pinnedScreenshots)
        return {};
    m_pinnedScreenshots = std::move(next);
    storePins();
    Q_EMIT updates(m_state);
    return {};
}

Result<void> AppSettings::rebindScreenshotPin(const QString &path, const QString &newPath) {
    requireMainThread();
    const auto found = std::ranges::find_if(m_pinnedScreenshots, [&path](const PinnedScreenshot &pin) {
        return pin.resolved && pin.resolved->path == path;
    });
    if (found == m_pinnedScreenshots.end())
        return {};
    const auto made = pin(newPath);
    if (!made)
        return failure(made.error());
    *found = *made;
    storePins();
    Q_EMIT updates(m_state);
    return {};
}

void AppSettings::refreshUnresolvedPins(bool gone) {
    requireMainThread();
    bool found = false;
    for (PinnedScreenshot &pin : m_pinnedScreenshots) {
        if (pin.resolved || (pin.isGone && !gone))
            continue;
        pin = resolvedPin(pin.bookmark);
        found = found || pin.resolved;
    }
    if (found)
        Q_EMIT updates(m_state);
}

void AppSettings::protectRestoredScreenshots(const QStringList &paths, Instant now) {
    requireMainThread();
    auto list =
        AutoCleanGrace::fromJson(m_defaults.data(settingsKey::autoCleanRestoredFiles).value_or(QByteArray()));
    std::vector<AutoCleanGrace> fresh;
    for (const QString &path : paths) {
        const auto bookmark = m_functions.createBookmark(path);
        if (!bookmark)
            continue;
        fresh.push_back({*bookmark, path, now});
    }
    const QSet<QString> replaced(paths.cbegin(), paths.cend());
    std::erase_if(list, [&replaced](const AutoCleanGrace &grace) { return replaced.contains(grace.path); });
    std::ranges::move(fresh, std::back_inserter(list));
    m_defaults.setData(settingsKey::autoCleanRestoredFiles, AutoCleanGrace::toJson(list));
}

std::vector<AutoCleanGrace> AppSettings::currentGrace(Instant now) {
    requireMainThread();
    auto list =
        AutoCleanGrace::fromJson(m_defaults.data(settingsKey::autoCleanRestoredFiles).value_or(QByteArray()));
    const auto dropped = std::erase_if(list, [now](const AutoCleanGrace &grace) {
        return grace.restoredAt + AutoCleanGrace::period <= now;
    });
    if (dropped > 0)
        m_defaults.setData(settingsKey::autoCleanRestoredFiles, AutoCleanGrace::toJson(list));
    return list;
}

QHash<QString, Instant> AppSettings::autoCleanGraceDates(Instant now) {
    QHash<QString, Instant> dates;
    for (const AutoCleanGrace &grace : currentGrace(now))
        dates.insert(grace.path, grace.restoredAt + AutoCleanGrace::period);
    return dates;
}

QHash<FileResource, Instant> AppSettings::autoCleanGraceFiles(Instant now) {
    QHash<FileResource, Instant> dates;
    for (const AutoCleanGrace &grace : currentGrace(now)) {
        if (const auto file = m_functions.bookmarkedFile(grace.bookmark))
            dates.insert(*file, grace.restoredAt + AutoCleanGrace::period);
    }
    return dates;
}

} // namespace tembra
