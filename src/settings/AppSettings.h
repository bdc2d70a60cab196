#pragma once

#include "base/Clocks.h"
#include "settings/AppSettingsState.h"
#include "settings/AutoCleanGrace.h"
#include "settings/FolderPreferences.h"
#include "settings/PinnedScreenshot.h"
#include "settings/ScreenshotFolderAccess.h"
#include "settings/ScreenshotThumbnailPreference.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>
#include <vector>

namespace tembra {

class UserDefaults;

// The one owner of the user's preferences and the only writer of their keys. Everybody reads `state` and
// listens to `updates`, which is emitted synchronously after each change. Main thread; one for the life of
// the program, owned by AppDelegate.
class AppSettings final : public QObject {
    Q_OBJECT

public:
    // What the settings need done outside of their own store. Replaceable.
    struct Functions {
        // Points the screenshot tool at a folder.
        std::function<Result<void>(const QString &folder)> updateSystemFolder;
        ScreenshotThumbnailPreference thumbnailPreference;
        std::function<Result<QByteArray>(const QString &path)> createBookmark;
        // The error is "Tembra.Bookmarks" volumeAbsent while the file's disk is not there.
        std::function<Result<PinnedScreenshot::Resolved>(const QByteArray &bookmark)> resolvePinnedBookmark;
        // The file that a bookmark stands for, where the file system tells files by more than their path.
        std::function<std::optional<FileResource>(const QByteArray &bookmark)> bookmarkedFile;
    };

    // Migrates and loads. The defaults must outlive this.
    AppSettings(UserDefaults &defaults, FolderPreferences folderPreferences,
                ScreenshotFolderAccess folderAccess, Functions functions);

    [[nodiscard]] const AppSettingsState &state() const { return m_state; }
    // A folder was granted once, but it cannot be found or used now.
    [[nodiscard]] bool isFolderAccessLost() const;
    // Where that folder was: it may come back there.
    [[nodiscard]] std::optional<QString> lostScreenshotsFolder() const;
    [[nodiscard]] QSet<QString> pinnedScreenshotPaths() const;
    // The same files by what the file system knows them by: a pin holds also after a rename.
    [[nodiscard]] QSet<FileResource> pinnedScreenshotFiles() const;
    // Pinned files that cannot be told apart, because their disk is absent.
    [[nodiscard]] int unavailablePinCount() const;
    [[nodiscard]] const std::vector<PinnedScreenshot> &pinnedScreenshots() const {
        return m_pinnedScreenshots;
    }
    // Until when each restored screenshot is spared, by path. Entries that are over are dropped.
    [[nodiscard]] QHash<QString, Instant> autoCleanGraceDates(Instant now);
    // The same files by what the file system knows them by.
    [[nodiscard]] QHash<FileResource, Instant> autoCleanGraceFiles(Instant now);

    void setActivationMode(ActivationMode mode);
    void setShortcutEnabled(bool enabled);
    // An invalid shortcut is ignored.
    void setActivationShortcut(const ActivationShortcut &shortcut);
    void setHoverOnTabToOpen(bool opens);
    void setFileTrayEnabled(bool enabled);
    void setImageToTextEnabled(bool enabled);
    void setDisplayPreference(DisplayPreference preference);
    void setScreenshotNotifications(bool shown);
    void setAutomaticallyCopyScreenshots(bool copies);
    void setAutomaticallyOpenEditor(bool opens);
    void setShowFileNames(bool shown);
    void setGroupScreenshotsByDate(bool grouped);
    // None means those of the desktop.
    void setTextRecognitionLanguages(const QStringList &codes);
    // Empty for none.
    void setNewCaptureCommand(const QStringList &command);
    void setScreenshotAutoClean(ScreenshotAutoCleanPeriod period);
    // Switches the screenshot tool's floating thumbnail off, or back to how it was before.
    Result<void> setScreenshotPreviewDisabled(bool disabled);
    // Reads the tool's value again, which the user may have changed elsewhere.
    void refreshScreenshotPreview();

    // Makes the folder the granted one; on failure everything stays as it was.
    Result<void> grantScreenshotsFolder(const QString &folder, bool updateSystemLocation,
                                        bool resetAutoClean);
    // Looks for the granted folder again: it may have been renamed or moved, or its disk may have come back.
    // When it is not found nothing changes.
    // Access is lost when the disk is absent.
    void refreshFolderAccess();

    void beginOnboarding();
    void completeOnboarding();
    void markFirstScreenshotCaught();

    Result<void> setScreenshotsPinned(const QStringList &paths, bool pinned);
    // A pinned file has moved.
    Result<void> rebindScreenshotPin(const QString &path, const QString &newPath);
    // Tries again to find the pins whose disk was absent; with `gone` also those whose file was deleted,
    // which takes longer.
    void refreshUnresolvedPins(bool gone = false);

    // Spares screenshots that came back from the Trash; one that is gone again needs no sparing.
    void protectRestoredScreenshots(const QStringList &paths, Instant now);

Q_SIGNALS:
    void updates(const tembra::AppSettingsState &state);

private:
    void loadPins();
    void loadFolder();
    void adoptLegacyFolder();
    void applyFolderAccess();
    void storePins();
    [[nodiscard]] PinnedScreenshot resolvedPin(const QByteArray &bookmark) const;
    [[nodiscard]] std::vector<AutoCleanGrace> currentGrace(Instant now);
    [[nodiscard]] Result<PinnedScreenshot> pin(const QString &path) const;
    void change(const AppSettingsState &next);
    // Compares, stores, and publishes.
    template <class Value, class Store>
    void assign(Value AppSettingsState::*field, const Value &value, Store store);
    void setFlag(bool AppSettingsState::*field, const QString &key, bool value);

    UserDefaults &m_defaults;
    const FolderPreferences m_folderPreferences;
    ScreenshotFolderAccess m_folderAccess;
    const Functions m_functions;
    std::vector<PinnedScreenshot> m_pinnedScreenshots;
    AppSettingsState m_state;
};

} // namespace tembra
