#pragma once

#include "platform/linux/LinuxBookmarks.h"
#include "settings/AppSettings.h"
#include "settings/SettingsKeys.h"
#include "support/FakeScreenCapturePreferences.h"
#include "support/Files.h"
#include "support/MemoryUserDefaults.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tembra {

// Settings over stored values in memory and over real folders.
class SettingsFixture : public testing::Test {
protected:
    // What each start of the program does.
    void start() {
        m_updates.clear();
        m_settings = std::make_unique<AppSettings>(m_defaults, FolderPreferences{},
                                                   ScreenshotFolderAccess(m_bookmarks, m_files, m_folders),
                                                   functions());
        QObject::connect(m_settings.get(), &AppSettings::updates, m_settings.get(),
                         [this](const AppSettingsState &state) {
                             EXPECT_EQ(state, m_settings->state());
                             m_updates.push_back(state);
                         });
    }

    [[nodiscard]] QString path(const char *name) const { return m_root.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString makeFolder(const char *name) const {
        EXPECT_TRUE(QDir().mkpath(path(name)));
        return path(name);
    }
    [[nodiscard]] QByteArray bookmark(const QString &path) const {
        return m_bookmarks.create(path).value_or(QByteArray());
    }
    static Error error() { return {QStringLiteral("Test"), 7, QStringLiteral("It does not work."), {}}; }

    QTemporaryDir m_root;
    LinuxFileFactsReader m_files;
    const StandardFolders m_folders{.trash = {path("Trash")}};
    LinuxBookmarks m_bookmarks{m_files, m_folders};
    MemoryUserDefaults m_defaults;
    FakeScreenCapturePreferences m_tool;
    bool m_systemFolderFails = false;
    QStringList m_systemFolders;
    // Bookmarks that are not found while they are in here.
    QList<QByteArray> m_absent;
    std::unique_ptr<AppSettings> m_settings;
    std::vector<AppSettingsState> m_updates;

private:
    AppSettings::Functions functions() {
        return {
            .updateSystemFolder = [this](const QString &folder) -> Result<void> {
                if (m_systemFolderFails)
                    return failure(error());
                m_systemFolders.append(folder);
                return {};
            },
            .thumbnailPreference = ScreenshotThumbnailPreference::system(m_tool),
            .createBookmark = [this](const QString &path) { return m_bookmarks.create(path); },
            .resolvePinnedBookmark =
                [this](const QByteArray &bookmark) -> Result<PinnedScreenshot::Resolved> {
                if (m_absent.contains(bookmark))
                    return failure({.domain = Bookmarks::errorDomain, .code = Bookmarks::volumeAbsent});
                return m_bookmarks.resolve(bookmark).map([this](const Bookmarks::Resolved &found) {
                    return PinnedScreenshot::Resolved{found.path, m_files.facts(found.path)->resource};
                });
            },
            .bookmarkedFile = [this](const QByteArray &bookmark) { return m_bookmarks.resource(bookmark); }};
    }
};

} // namespace tembra
