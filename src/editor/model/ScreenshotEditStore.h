#pragma once

#include "base/Generation.h"
#include "editor/model/ScreenshotEditFolder.h"
#include "editor/model/ScreenshotEditLoaded.h"
#include "editor/model/ScreenshotEditPreviewRequest.h"
#include "editor/model/ScreenshotEditRecords.h"
#include "editor/model/ScreenshotEditRecovery.h"
#include "editor/model/ScreenshotEditSaved.h"
#include "editor/model/ScreenshotEditServices.h"
#include "platform/StandardFolders.h"

#include <QHash>
#include <QRectF>
#include <QString>

#include <functional>
#include <mutex>
#include <optional>
#include <vector>

namespace tembra {

// Keeps the edits of screenshots editable although the files are overwritten: an untouched copy of each
// original and a record of what was drawn on it. Whenever the program or the machine stops, the screenshot is
// the old or the new one whole, the original is whole, and the next load brings the record to match. Loading,
// saving and renaming take time and run on any thread but the main one; badges belong to the main thread. One
// for the program; made by the composition root. Errors: ScreenshotEditError, else what the system says.
class ScreenshotEditStore {
public:
    using Record = ScreenshotEditRecord;
    using Loaded = ScreenshotEditLoaded;
    using Saved = ScreenshotEditSaved;
    using PreviewRequest = ScreenshotEditPreviewRequest;

    using Services = ScreenshotEditServices;

    // The folder of the user's store.
    [[nodiscard]] static QString folder(const StandardFolders &folders) {
        return folders.data + QStringLiteral("/ScreenshotEdits");
    }

    // `root` is the store's folder, made when it is needed. The services must outlive this.
    ScreenshotEditStore(const QString &root, Services services);
    ScreenshotEditStore(const ScreenshotEditStore &) = delete;
    ScreenshotEditStore &operator=(const ScreenshotEditStore &) = delete;

    [[nodiscard]] Result<Loaded> load(const QString &path, const std::optional<PreviewRequest> &preview);
    [[nodiscard]] Result<Saved> save(const Loaded &loaded,
                                     const std::vector<ScreenshotAnnotation> &annotations,
                                     const std::optional<QRectF> &cropRect);

    [[nodiscard]] Result<Loaded> rename(const Loaded &loaded, const QString &name);
    // As above, with " copy" and then a counter appended to the name for as long as it is taken.
    [[nodiscard]] Result<Loaded> renameKeepingBoth(const Loaded &loaded, const QString &name);
    // Where a name would put the file: beside it, with its extension.
    [[nodiscard]] static Result<QString> renamedPath(const Loaded &loaded, const QString &name);
    // The name is taken.
    [[nodiscard]] static bool isNameCollision(const Error &error);

    // Which screenshots carry edits, each with the revision of the file that they made. Main thread.
    [[nodiscard]] const QHash<ScreenshotFileIdentity, QString> &badges() const { return m_badges; }
    // After every change of the badges.
    std::function<void()> onBadgesChanged;
    void loadBadges(std::function<void()> completion);
    // After a save or a rename; `previous` is the identity that the file had.
    void updateBadge(const Loaded &loaded, const std::optional<ScreenshotFileIdentity> &previous);

private:
    using Badges = QHash<ScreenshotFileIdentity, QString>;

    [[nodiscard]] Loaded whereItIs(Loaded loaded) const;
    [[nodiscard]] Result<void> replace(const Loaded &loaded, const QString &path, const QString &temporary,
                                       const QByteArray &bytes) const;
    [[nodiscard]] Loaded reloaded(Loaded loaded, const Record &record, const QString &path) const;
    [[nodiscard]] Result<Loaded> moveTo(const Loaded &loaded, const QString &target);

    const Services m_services;
    const ScreenshotEditFolder m_folder;
    const ScreenshotEditRecords m_records;
    const ScreenshotEditRecovery m_recovery;
    // One load, save or rename at a time.
    std::mutex m_mutex;
    Badges m_badges;
    Generation m_generation;
};

} // namespace tembra
