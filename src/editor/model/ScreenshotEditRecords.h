#pragma once

#include "editor/model/ScreenshotEditFolder.h"
#include "editor/model/ScreenshotEditServices.h"
#include "screenshots/ScreenshotFileIdentity.h"

#include <QHash>

#include <optional>

namespace tembra {

// Finds the record of a screenshot among those of the edit store, and settles saves that were interrupted.
// One thread at a time.
class ScreenshotEditRecords {
public:
    using Record = ScreenshotEditRecord;

    struct Match {
        std::optional<Record> record;
        // The bytes from before the first edit; nothing where they are the file's own.
        std::optional<QByteArray> original;
    };

    ScreenshotEditRecords(const ScreenshotEditFolder &folder, const ScreenshotEditServices &services);

    // What belongs to the file of this path, these facts and this content (SHA-256, lower-case hexadecimal).
    // Errors: ScreenshotEditError.
    [[nodiscard]] Result<Match> match(const QString &path, const FileFacts &facts, const QString &hash) const;
    // The record with what is to be told of the file that was just written there.
    [[nodiscard]] Record finished(Record record, const QString &path) const;

    // Which files carry edits, and the revision of each that they made.
    [[nodiscard]] QHash<ScreenshotFileIdentity, QString> revisions() const;
    // As Shot has it; nothing for a record without edits.
    [[nodiscard]] static std::optional<QString> revision(const Record &record);

private:
    [[nodiscard]] bool belongs(const Record::Reading &reading, const QString &path,
                               const FileFacts &facts) const;
    [[nodiscard]] QString fileOf(const Record &record) const;

    const ScreenshotEditFolder &m_folder;
    const ScreenshotEditServices &m_services;
};

} // namespace tembra
