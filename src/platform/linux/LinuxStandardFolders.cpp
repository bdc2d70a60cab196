#include "platform/linux/LinuxStandardFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace tembra {

namespace {

QString folder(QStandardPaths::StandardLocation location) {
    return QDir::cleanPath(QStandardPaths::writableLocation(location));
}

QString runtimeFolder() {
    const QString given = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return given.startsWith(u'/') ? QDir::cleanPath(given) : QDir::cleanPath(QDir::tempPath());
}

void setOwnFolders(StandardFolders &folders) {
    const QString name = QStringLiteral("/tembra");
    if (const QString home = qEnvironmentVariable("TEMBRA_HOME"); !home.isEmpty()) {
        const QString root = QDir::cleanPath(QDir(home).absolutePath());
        folders.configuration = root + QStringLiteral("/config");
        folders.data = root + QStringLiteral("/data");
        folders.cache = root + QStringLiteral("/cache");
        folders.runtime = root + QStringLiteral("/runtime");
        return;
    }
    folders.configuration = folder(QStandardPaths::GenericConfigLocation) + name;
    folders.data = folder(QStandardPaths::GenericDataLocation) + name;
    folders.cache = folder(QStandardPaths::GenericCacheLocation) + name;
    folders.runtime = runtimeFolder() + name;
}

} // namespace

StandardFolders linuxStandardFolders() {
    const QString data = folder(QStandardPaths::GenericDataLocation);
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
