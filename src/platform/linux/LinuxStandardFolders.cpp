#include "platform/linux/LinuxStandardFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace tembra {

namespace {

QString folder(QStandardPaths::StandardLocation location) {
    return QDir::cleanPath(QStandardPaths::writableLocation(location));
}

// A relative path in the environment does not count: every program would find another folder.
QString baseFolder(const char *variable, const QString &fallback) {
    const QString given = qEnvironmentVariable(variable);
    return QDir::cleanPath(given.startsWith(u'/') ? given : fallback);
}

QString dataFolder() {
    return baseFolder("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share"));
}

void setOwnFolders(StandardFolders &folders) {
    const QString name = QStringLiteral("/tembra");
    if (const QString home = qEnvironmentVariable("TEMBRA_HOME"); !home.isEmpty()) {
        const QString root = QDir::cleanPath(QDir(home).absolutePath());
        folders.configuration = root + QStringLiteral("/config");
        folders.data = root + QStringLiteral("/data");
        folders.cache = root + QStringLiteral("/cache");
        folders.runtime = root + QStringLiteral("/runtime");
        folders.temporary = root + QStringLiteral("/temporary");
        return;
    }
    const QString user = QDir::homePath();
    folders.configuration = baseFolder("XDG_CONFIG_HOME", user + QStringLiteral("/.config")) + name;
    folders.data = dataFolder() + name;
    folders.cache = baseFolder("XDG_CACHE_HOME", user + QStringLiteral("/.cache")) + name;
    folders.runtime = baseFolder("XDG_RUNTIME_DIR", QDir::tempPath()) + name;
    folders.temporary = QDir::cleanPath(QDir::tempPath());
}

} // namespace

StandardFolders linuxStandardFolders() {
    const QString data = dataFolder();
    StandardFolders folders;
    folders.home = QDir::cleanPath(QDir::homePath());
    folders.desktop = folder(QStandardPaths::DesktopLocation);
    folders.documents = folder(QStandardPaths::DocumentsLocation);
    folders.downloads = folder(QStandardPaths::DownloadLocation);
    folders.pictures = folder(QStandardPaths::PicturesLocation);
    folders.videos = folder(QStandardPaths::MoviesLocation);
    folders.music = folder(QStandardPaths::MusicLocation);
    folders.publicShare = folder(QStandardPaths::PublicShareLocation);
    folders.library = data;
    folders.applications = data + QStringLiteral("/applications");
    folders.shared = QStringLiteral("/home");
    folders.root = QStringLiteral("/");
    folders.trash = {data + QStringLiteral("/Trash")};
    setOwnFolders(folders);
    return folders;
}

} // namespace tembra
