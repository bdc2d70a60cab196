#pragma once

#include "base/Result.h"
#include "platform/PasteboardContent.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUuid>

namespace tembra {

// Where files lie that the tray received without their having been files. A folder of this user's alone, in
// the first of the given folders where there can be one: elsewhere somebody else may have taken the name. A
// value; any thread. Errors have the domain "Tembra.Clipboard".
class ClipboardScratchFolder {
public:
    static inline const QString errorDomain = QStringLiteral("Tembra.Clipboard");
    enum ErrorCode { noFolder = 1, notWritten, noImage };

    explicit ClipboardScratchFolder(const QStringList &temporaryFolders);

    // Deletes what earlier runs of the program left.
    void empty() const;
    // A new folder for one import.
    [[nodiscard]] Result<QString> makeStorageDirectory() const;
    // These write a file into a folder of its own and give its path. Nothing is left behind on failure, nor
    // half of a file.
    [[nodiscard]] Result<QString> write(const QString &name, const QByteArray &content) const;
    [[nodiscard]] Result<QString> write(const PasteboardImage &image) const;

private:
    QStringList m_roots;
    // Begins the names of the folders that this run makes.
    QString m_run = QUuid::createUuid().toString(QUuid::Id128);
};

} // namespace tembra
