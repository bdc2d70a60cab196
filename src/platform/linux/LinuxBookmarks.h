#pragma once

#include "platform/Bookmarks.h"
#include "platform/StandardFolders.h"
#include "platform/linux/FileFinder.h"
#include "platform/linux/LinuxFileFacts.h"

namespace tembra {

// Bookmarks as JSON: the path, and the identity where the file system has one. A bookmark resolves to the
// file with its identity, looked for around the old path and in the Trash; else, when its volume is mounted,
// to whatever has taken the path since, as a stale one: programs replace files by writing new ones over them.
class LinuxBookmarks final : public Bookmarks {
public:
    LinuxBookmarks(const LinuxFileFactsReader &reader, const StandardFolders &folders);

    [[nodiscard]] Result<QByteArray> create(const QString &path) const override;
    [[nodiscard]] std::optional<QString> lastKnownPath(const QByteArray &bookmark) const override;
    [[nodiscard]] std::optional<FileResource> resource(const QByteArray &bookmark) const override;
    [[nodiscard]] Result<Resolved> resolve(const QByteArray &bookmark) const override;

private:
    const LinuxFileFactsReader &m_reader;
    const FileFinder m_finder;
};

} // namespace tembra
