#pragma once

#include "editor/model/ScreenshotEditFolder.h"
#include "editor/model/ScreenshotEditRecords.h"
#include "editor/model/ScreenshotEditServices.h"

#include <optional>

namespace tembra {

// Brings the record of a save that was interrupted to match the screenshot: the record that was pending holds
// if the screenshot has its content, else it is dropped. One thread at a time.
class ScreenshotEditRecovery {
public:
    // All of them must outlive this.
    ScreenshotEditRecovery(const ScreenshotEditFolder &folder, const ScreenshotEditRecords &records,
                           const ScreenshotEditServices &services);

    // Of the screenshot at this path with this content (SHA-256, lower-case hexadecimal). On failure nothing
    // may be taken from the records yet.
    [[nodiscard]] Result<void> settle(const QString &path, const QString &hash) const;
    // Of the record of the screenshot that is there now.
    [[nodiscard]] Result<void> settle(const QUuid &id, const QString &path) const;
    // After a save that failed: what it left pending goes, unless the screenshot or a file beside it needs
    // it.
    void settleFailure(const QUuid &id, const QString &path) const;
    // Of all screenshots that are where they were, with everything else that was left.
    void settleAll() const;

private:
    using Pending = ScreenshotEditFolder::Pending;

    [[nodiscard]] std::optional<QString> hashOf(const QString &path) const;
    [[nodiscard]] Result<void> settle(const Pending &pending, const QString &path, const QString &hash) const;
    // Whether there is none any more.
    [[nodiscard]] bool clearTemporary(const Pending &pending, bool wasReplaced) const;

    const ScreenshotEditFolder &m_folder;
    const ScreenshotEditRecords &m_records;
    const ScreenshotEditServices &m_services;
};

} // namespace tembra
