#pragma once

#include "screenshots/FileWatcherService.h"
#include "screenshots/FolderShelf.h"

#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace tembra {

class AppSettings;
class UserDefaults;

// The model behind the shelf's contents: the screenshots folder that the watcher feeds, and the selection.
// Main thread; one for the life of the program, owned by ShelfController, which hangs its callbacks on it.
class ShelfSession {
public:
    ShelfSession(AppSettings &settings, const UserDefaults &defaults,
                 std::unique_ptr<FileWatcherService> fileWatcher);
    ~ShelfSession();
    ShelfSession(const ShelfSession &) = delete;
    ShelfSession &operator=(const ShelfSession &) = delete;

    // The folders being shown; the watcher feeds the first.
    std::vector<std::unique_ptr<FolderShelf>> shelves;
    QSet<ScreenshotFileIdentity> selected;
    // Stamps of the file versions that the user dismissed from the shelf.
    QSet<QString> dismissed;
    // Set by the owner while the shelf is started.
    bool isRunning = false;

    // Forwarded from the watcher, after the selection was brought in step.
    std::function<void(FolderShelf &, bool, int)> onFolderChange;
    std::function<void(const std::vector<Shot> &)> onNewFiles;

    [[nodiscard]] FolderShelf &folderShelf() { return *shelves.front(); }
    [[nodiscard]] const FolderShelf &folderShelf() const { return *shelves.front(); }
    [[nodiscard]] FileWatcherService &fileWatcher() { return *m_fileWatcher; }
    [[nodiscard]] AppSettings &settings() { return m_settings; }

    // Watches the folder of the settings: from the beginning when it is another one than before.
    void refreshWatcher();
    void stopWatcher();

private:
    void wire();
    void folderChanged(FolderShelf &shelf, bool flag, int count);

    AppSettings &m_settings;
    std::unique_ptr<FileWatcherService> m_fileWatcher;
};

} // namespace tembra
