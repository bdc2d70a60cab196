#pragma once

#include "editor/model/ScreenshotEditRecord.h"
#include "platform/FileCoordinator.h"

#include <QString>

#include <optional>
#include <vector>

namespace tembra {

// The folder of the edit store on disk, readable by its owner alone:
//   <record id>/record.json    the record
//   <record id>/pending.json   the record of a save in progress, or of one that was interrupted
//   <record id>/original       the image file's bytes from before the first edit
// Every file is written whole or not at all. Any thread. Errors are the file system's: a file that is there
// but cannot be read now is never taken for one that is missing.
class ScreenshotEditFolder {
public:
    // How the names of the files begin that saves write beside screenshots.
    static inline const QString temporaryPrefix = QStringLiteral(".tembra-edit-");

    // What a save in progress had in mind.
    struct Pending {
        ScreenshotEditRecord record;
        // The name of the file beside the screenshot; empty when it is not known.
        QString temporary;
    };

    // The coordinator must outlive this.
    ScreenshotEditFolder(QString root, const FileCoordinator &files);

    [[nodiscard]] std::vector<QUuid> ids() const;
    // Nothing when there is none or it is no record.
    [[nodiscard]] Result<std::optional<ScreenshotEditRecord::Reading>> record(const QUuid &id) const;
    [[nodiscard]] Result<std::optional<Pending>> pending(const QUuid &id) const;
    [[nodiscard]] Result<QByteArray> original(const QUuid &id) const;

    [[nodiscard]] Result<void> writeRecord(const ScreenshotEditRecord &record) const;
    // Fails for a record that would not be read again as it is.
    [[nodiscard]] Result<void> writePending(const ScreenshotEditRecord &record,
                                            const QString &temporary) const;
    void removePending(const QUuid &id) const;
    // Once the screenshot was saved, the original stays as it is.
    [[nodiscard]] Result<void> keepOriginal(const QUuid &id, const QByteArray &bytes) const;
    // What writing left when the program was killed.
    void removeLeftovers(const QUuid &id) const;

private:
    [[nodiscard]] QString folder(const QUuid &id) const;
    [[nodiscard]] Result<std::optional<QByteArray>> content(const QUuid &id, const QString &name) const;
    [[nodiscard]] Result<void> makeFolder(const QUuid &id) const;

    const QString m_root;
    const FileCoordinator &m_files;
};

} // namespace tembra
