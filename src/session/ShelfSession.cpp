#include "session/ShelfSession.h"

#include "platform/UserDefaults.h"
#include "settings/AppSettings.h"

namespace tembra {

ShelfSession::ShelfSession(AppSettings &settings, const UserDefaults &defaults,
                           std::unique_ptr<FileWatcherService> fileWatcher)
    : m_settings(settings), m_fileWatcher(std::move(fileWatcher)) {
    const QStringList stamps = defaults.stringArray(QStringLiteral("dismissed")).value_or(QStringList());
    dismissed = QSet<QString>(stamps.cbegin(), stamps.cend());
    shelves.push_back(std::make_unique<FolderShelf>());
    folderShelf().url = settings.state().screenshotsFolder;
    wire();
}

ShelfSession::~ShelfSession() = default;

void ShelfSession::wire() {
    m_fileWatcher->dismissedStamps = [this] { return dismissed; };
    m_fileWatcher->onChange = [this](FolderShelf &shelf, bool flag, int count) {
        folderChanged(shelf, flag, count);
    };
    m_fileWatcher->onNewFiles = [this](const std::vector<Shot> &shots) {
        if (onNewFiles)
            onNewFiles(shots);
    };
}

void ShelfSession::folderChanged(FolderShelf &shelf, bool flag, int count) {
    if (&shelf != shelves.front().get())
        return;
    if (shelf.errorText) {
        selected.clear();
    } else if (!selected.isEmpty()) {
        QSet<ScreenshotFileIdentity> present;
        for (const Shot &shot : shelf.shots)
            present.insert(shot.identity);
        selected.intersect(present);
    }
    if (onFolderChange)
        onFolderChange(shelf, flag, count);
}

void ShelfSession::refreshWatcher() {
    // A folder that is lost is waited for where it was.
    const auto &granted = m_settings.state().screenshotsFolder;
    const std::optional<QString> folder = granted ? granted : m_settings.lostScreenshotsFolder();
    if (folder != folderShelf().url) {
        stopWatcher();
        folderShelf() = FolderShelf();
        folderShelf().url = folder;
        selected.clear();
    }
    if (folder)
        m_fileWatcher->start(folderShelf());
}

void ShelfSession::stopWatcher() {
    m_fileWatcher->stop();
}

} // namespace tembra
