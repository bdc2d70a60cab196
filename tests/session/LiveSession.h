#pragma once

#include "platform/linux/LinuxBookmarks.h"
#include "screenshots/FolderReader.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"
#include "support/FakeFolderEvents.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SessionServices.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTime>

#include <gtest/gtest.h>

#include <algorithm>

namespace tembra {

// A session that watches a real folder with a real Trash; time and events come from the test.
class LiveSession {
public:
    // Over a folder of its own, or over one that was left by another.
    explicit LiveSession(const QString &leftFolder = {})
        : folder(leftFolder.isEmpty() ? parts.home.filePath(QStringLiteral("Screenshots")) : leftFolder) {
        QDir().mkpath(folder);
        EXPECT_TRUE(settings.grantScreenshotsFolder(folder, false, false));
        session.onBeforeRemoval = [this] { told += QStringLiteral("before %1").arg(shown().size()); };
        session.onChange = [this] { told += QStringLiteral("changed %1").arg(shown().size()); };
        session.onError = [this](const QString &title, const QString &message) {
            told += QStringLiteral("error");
            errors.append({title, message});
        };
        session.onNewFiles = [this](const std::vector<Shot> &shots) {
            for (const Shot &shot : shots)
                announced += QFileInfo(shot.location).fileName();
        };
    }

    [[nodiscard]] QString path(const QString &name) const { return folder + u'/' + name; }
    [[nodiscard]] static QString nameOf(int index) {
        const QString time = QTime(10, 0).addSecs(index).toString(QStringLiteral("HHmmss"));
        return QStringLiteral("Screenshot_20261121_%1.png").arg(time);
    }
    // Files that were made an hour ago, the first of them last.
    QStringList writeOld(int count) const {
        const QByteArray picture = pictureBytes("png", {4, 4});
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names += nameOf(i);
            setModified(writeFile(path(names.last()), picture),
                        parts.now() - std::chrono::hours(1) - std::chrono::seconds(i));
        }
        return names;
    }
    void start() {
        session.refreshWatcher();
        settle();
    }
    // Lets scans that are due, and what they lead to, happen.
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            parts.scheduler.advance(std::chrono::milliseconds(100));
            scanQueue.runAll();
            parts.scheduler.settle();
        }
    }
    // A scan that has read the folder and not told of it yet.
    void readFolder() {
        session.fileWatcher().scanNow();
        scanQueue.runAll();
    }
    // Each move takes that long.
    void slowDown(std::chrono::milliseconds move) {
        session.moveScreenshotToTrash = [this, move](const QString &file, const Trash::Guard &guard) {
            parts.scheduler.advance(move);
            return parts.trash.moveToTrash(file, guard);
        };
    }

    [[nodiscard]] QStringList shown() const {
        QStringList names;
        for (const Shot &shot : session.folderShelf().shots)
            names += QFileInfo(shot.location).fileName();
        return names;
    }
    [[nodiscard]] std::vector<Shot> shots(const QStringList &names) const {
        std::vector<Shot> found;
        for (const QString &name : names) {
            for (const Shot &shot : session.folderShelf().shots) {
                if (QFileInfo(shot.location).fileName() == name)
                    found.push_back(shot);
            }
        }
        return found;
    }
    void select(const QStringList &names) {
        session.selected.clear();
        for (const Shot &shot : shots(names))
            session.selected.insert(shot.identity);
    }
    [[nodiscard]] QStringList selected() const {
        QStringList names;
        for (const Shot &shot : session.folderShelf().shots) {
            if (session.selected.contains(shot.identity))
                names += QFileInfo(shot.location).fileName();
        }
        return names;
    }
    [[nodiscard]] QStringList tray() const {
        QStringList names;
        for (const ClipboardEntry &entry : session.clipboard.entries())
            names += QFileInfo(entry.lastKnownPath).fileName();
        return names;
    }
    // Every file beneath, by name.
    [[nodiscard]] static QStringList filesIn(const QString &where) {
        QStringList names;
        QDirIterator files(where, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            names += QFileInfo(files.next()).fileName();
        names.sort();
        return names;
    }
    [[nodiscard]] QString trashedFiles() const { return parts.trashFolder + QStringLiteral("/files"); }

    SessionServices parts;
    const QString folder;
    FakeFolderEvents events;
    ManualQueue scanQueue;
    // Files that cannot be pinned.
    QStringList unpinnable;
    LinuxBookmarks bookmarks{parts.files, StandardFolders{.trash = {parts.trashFolder}}};
    AppSettings settings{
        parts.defaults,
        FolderPreferences(),
        ScreenshotFolderAccess(bookmarks, parts.files, StandardFolders{.trash = {parts.trashFolder}}),
        {.updateSystemFolder = [](const QString &) { return Result<void>(); },
         .thumbnailPreference = {[] { return std::nullopt; }, [](auto) { return Result<void>(); }},
         .createBookmark = [this](const QString &file) -> Result<QByteArray> {
             if (unpinnable.contains(file))
                 return failure({QStringLiteral("Test"), 1, QStringLiteral("It does not work."), {}});
             return bookmarks.create(file);
         },
         .resolvePinnedBookmark =
             [this](const QByteArray &bookmark) {
                 return bookmarks.resolve(bookmark).map([this](const Bookmarks::Resolved &found) {
                     return PinnedScreenshot::Resolved{found.path, parts.files.facts(found.path)->resource};
                 });
             },
         .bookmarkedFile = [this](const QByteArray &bookmark) { return bookmarks.resource(bookmark); }}};
    ShelfSession session{
        settings, parts.services(),
        std::make_unique<FileWatcherService>(
            FileWatcherService::Services{events, parts.scheduler, parts.scheduler.uptimeClock(), parts.now,
                                         scanQueue, parts.detector,
                                         [this](const QString &) { return parts.includesSubfolders; }},
            std::make_shared<FolderReader>(parts.folderFiles, parts.detector, [] { return QString(); }))};

    // What the session told, with how many screenshots were on the shelf then.
    QStringList told;
    QList<std::pair<QString, QString>> errors;
    QStringList announced;
};

} // namespace tembra
