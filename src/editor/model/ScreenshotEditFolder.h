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
// Every file is written whole or not at all. Any thread.
class ScreenshotEditFolder {
public:
    // How the names of the files begin that saves write beside screenshots.
    static inline const QString temporaryPrefix = QStringLiteral(".tembra-edit-");

    // What a save in progress had in mind.
    struct Pending {
        ScreenshotEditRecord record;
        // The file beside the screenshot; empty when it is not known.
        QString temporary;
    };

    // The coordinator must outlive this.
    ScreenshotEditFolder(QString root, const FileCoordinator &files);

    [[nodiscard]] std::vector<QUuid> ids() const;
    // Nothing when there is none or it is no record.
    [[nodiscard]] std::optional<ScreenshotEditRecord::Reading> record(const QUuid &id) const;
    [[nodiscard]] std::optional<Pending> pending(const QUuid &id) const;
    [[nodiscard]] Result<QByteArray> original(const QUuid &id) const;

    // Also removes what a save left pending.
    [[nodiscard]] Result<void> writeRecord(const ScreenshotEditRecord &record) const;
    [[nodiscard]] Result<void> writePending(const ScreenshotEditRecord &record,
                                            const QString &temporary) const;
    void removePending(const QUuid &id) const;
    // Once the screenshot was saved, the original stays as it is.
    [[nodiscard]] Result<void> keepOriginal(const QUuid &id, const QByteArray &bytes) const;

private:
    [[nodiscard]] QString file(const QUuid &id, const QString &name) const;
    [[nodiscard]] bool hasSavedOriginal(const QUuid &id) const;

    const QString m_root;
    const FileCoordinator &m_files;
};

} // namespace tembra
