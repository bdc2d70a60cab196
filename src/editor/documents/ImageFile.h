#pragma once

#include "base/Result.h"
#include "platform/FileCoordinator.h"
#include "platform/FileFacts.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace tembra {

// Writes images beside others. A file is there whole or not at all, and nothing of somebody else's is lost.
// Any thread but the main one. Errors: "Cocoa" for a name that is taken, else what the system says.
class ImageFile {
public:
    ImageFile(const FileFactsReader &files, const FileCoordinator &coordinator)
        : m_files(files), m_coordinator(coordinator) {}

    // With the permissions of the file that it replaces, else of `like`, as far as these are there.
    [[nodiscard]] Result<void> write(const QString &path, QByteArrayView bytes, const QString &like,
                                     bool mayReplace) const;
    // Copies the file under a free name beside it: "… copy", then numbered from 1. Gives the copy's path.
    [[nodiscard]] Result<QString> copyBeside(const QString &path) const;

private:
    [[nodiscard]] Result<QString> writeTemporary(const QString &path, QByteArrayView bytes,
                                                 const QStringList &models) const;
    [[nodiscard]] bool isFile(const QString &path) const;

    const FileFactsReader &m_files;
    const FileCoordinator &m_coordinator;
};

} // namespace tembra
