#include "platform/linux/FileFinder.h"

#include "base/FilePath.h"

#include <QDir>
#include <QFileInfo>

#include <deque>
#include <dirent.h>
#include <memory>
#include <string_view>

namespace tembra {

namespace {

// Folders that are looked into at each step of the search.
constexpr qsizetype mostFolders = 64;
// In the search of a whole volume: about half a second when nothing of it is in memory.
constexpr int mostFoldersBeneath = 5'000;

QStringList subfolders(const QString &folder) {
    const QDir directory(folder);
    QStringList paths;
    const QStringList names = directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : names.mid(0, mostFolders))
        paths.append(directory.filePath(name));
    return paths;
}

} // namespace

FileFinder::FileFinder(const FileFactsReader &reader, QStringList furtherFolders)
    : m_reader(reader), m_furtherFolders(std::move(furtherFolders)) {}

std::optional<QString> FileFinder::find(const FileResource &resource, const QString &lastKnownPath) const {
    if (isAt(lastKnownPath, resource))
        return lastKnownPath;
    const QString folder = QFileInfo(lastKnownPath).path();
    QStringList places{folder};
    places += subfolders(folder);
    places += QFileInfo(folder).path();
    places += subfolders(QFileInfo(folder).path());
    places += m_furtherFolders;
    places.removeDuplicates();
    for (const QString &place : places) {
        if (!isOnVolume(place, resource.volume))
            continue;
        if (auto found = findIn(place, resource))
            return found;
    }
    return std::nullopt;
}

std::optional<QString> FileFinder::findBeneath(const QString &folder, const FileResource &resource) const {
    std::deque<QString> places{folder};
    for (int looked = 0; !places.empty() && looked < mostFoldersBeneath; ++looked) {
        const QString place = std::move(places.front());
        places.pop_front();
        if (!isOnVolume(place, resource.volume))
            continue;
        const auto queue = [&](const char *name) {
            const std::string_view view(name);
            if (view != "." && view != ".." && !view.starts_with(".Trash"))
                places.push_back(QDir(place).filePath(pathFromBytes(name)));
        };
        if (auto found = findIn(place, resource, queue))
            return found;
    }
    return std::nullopt;
}

bool FileFinder::isAt(const QString &path, const FileResource &resource) const {
    const auto facts = m_reader.facts(path);
    return facts && facts->resource == resource;
}

// A folder of another volume does not hold the file, and to open one can mean to mount it.
bool FileFinder::isOnVolume(const QString &folder, std::uint64_t volume) const {
    const auto facts = m_reader.targetFacts(folder);
    return facts && facts->resource && facts->resource->volume == volume;
}

// The names of a folder come with their inodes, so that only those that can be the file are asked further.
std::optional<QString> FileFinder::findIn(const QString &folder, const FileResource &resource,
                                          const std::function<void(const char *)> &onSubfolder) const {
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(pathBytes(folder).constData()), ::closedir);
    if (!entries)
        return std::nullopt;
    while (const dirent *entry = ::readdir(entries.get())) {
        if (entry->d_type == DT_DIR && onSubfolder)
            onSubfolder(entry->d_name);
        if (entry->d_ino != resource.inode)
            continue;
        const QString path = QDir(folder).filePath(pathFromBytes(entry->d_name));
        if (isAt(path, resource))
            return path;
    }
    return std::nullopt;
}

} // namespace tembra
