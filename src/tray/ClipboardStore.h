#pragma once

#include "base/Generation.h"
#include "base/SlicedWork.h"
#include "tray/ClipboardEntry.h"
#include "tray/ClipboardFileState.h"
#include "tray/ClipboardFileWatches.h"
#include "tray/ClipboardInspector.h"
#include "tray/ClipboardRemoval.h"
#include "tray/ClipboardScratchFolder.h"
#include "tray/ClipboardStoreServices.h"
#include "tray/PromisedFolder.h"

#include <QHash>
#include <QList>
#include <QMimeData>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QUuid>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tembra {

// The files that the user put into the file tray. Entries refer to files where they are: taking one out
// leaves the file alone. Only what is no file yet, images and promised files, is written, into a scratch
// folder that is emptied when the program starts. The list lives as long as the program. A pasteboard is what
// a drop brings or what is on the clipboard. Main thread; owned by ShelfSession.
class ClipboardStore {
public:
    explicit ClipboardStore(ClipboardStoreServices services);
    ~ClipboardStore();
    ClipboardStore(const ClipboardStore &) = delete;
    ClipboardStore &operator=(const ClipboardStore &) = delete;

    // Whether files are taken at all.
    std::function<bool()> canReceive = [] { return true; };
    // Asked before reconciling; true puts it off until it is asked for again.
    std::function<bool()> shouldDeferReconciliation = [] { return false; };
    // Decides what became of an entry's file.
    std::function<ClipboardFileState(const ClipboardEntry &)> inspectEntry;
    // The user took files out.
    std::function<void(const ClipboardRemoval &)> onTakenOut = [](const ClipboardRemoval &) {};
    // After every change of the entries, of their selection or of the status.
    std::function<void()> onChange;

    [[nodiscard]] const std::vector<ClipboardEntry> &entries() const { return m_entries; }
    [[nodiscard]] QList<QUuid> order() const;
    [[nodiscard]] const QSet<QUuid> &selectedIDs() const { return m_selectedIDs; }
    [[nodiscard]] int importGeneration() const { return m_importGeneration; }
    // A line for the view about what was last asked for.
    [[nodiscard]] const std::optional<QString> &status() const { return m_status; }
    void setStatus(std::optional<QString> status);
    // The entries that stand for this file: by what the file system knows it by, or by its path.
    [[nodiscard]] std::vector<ClipboardEntry> references(const QString &path,
                                                         const ScreenshotFileIdentity &identity) const;

    // Whether there is anything on the pasteboard that the tray takes.
    [[nodiscard]] static bool canRead(const QMimeData &pasteboard);
    // The local files that the pasteboard names.
    [[nodiscard]] static QStringList files(const QMimeData &pasteboard);
    // Takes a drop or paste; false when nothing was taken. What is no file yet is added when it is written.
    bool receive(const QMimeData &pasteboard);
    // Adds the files that exist, unless the tray was cleared since the import of that generation began.
    void add(int generation, const QStringList &paths);
    void select(const QSet<QUuid> &ids);
    // The files stay.
    void removeSelected();
    void clear();
    // Puts back what was taken out, where it was, and selects what was selected.
    void putBack(const ClipboardRemoval &removal);
    // Takes out once more, as it is now, what had been put back.
    [[nodiscard]] ClipboardRemoval takeOut(const ClipboardRemoval &removal);

    // Takes entries out whose files went to the Trash.
    void removeReferences(const QSet<QUuid> &ids);
    // Puts them back where they were among `order`, and selects what was selected.
    void restoreReferences(const std::vector<ClipboardEntry> &entries, const QList<QUuid> &order,
                           const QSet<QUuid> &selection, int generation);
    // Points the entries at the file that the editor wrote in place of theirs.
    void rebindEditedReferences(const QSet<QUuid> &ids, const QString &path);

    // Follows what happens to the files and to the volumes they are on.
    void startMonitoring();
    void stopMonitoring();
    // Brings the entries in step with their files: at once for a tray of some hundreds, in slices for more.
    // Files that have to be looked for follow later.
    void reconcileFiles();
    // Does so soon, once for many requests.
    void scheduleReconciliation();

private:
    struct Outcome {
        ClipboardEntry before;
        ClipboardFileState state;
        ClipboardEntry now;
    };
    struct Pass;

    // Receiving.
    bool addFiles(const QStringList &paths);
    bool receivePromises(const QMimeData &pasteboard);
    void promisesDelivered(int generation, const QString &folder,
                           const Result<FilePromises::Delivery> &delivery);
    // Adds what comes into the folder.
    void awaitPromises(int generation, const QString &folder);
    void receiveImage(const QMimeData &pasteboard);
    // Runs the job on the queue and adds the file it wrote.
    void addWritten(std::function<Result<QString>()> write, const QString &failureStatus);

    // Reconciliation.
    void inspectNext(Pass &pass);
    void finishPass(const Pass &pass);
    void searchFor(const std::vector<ClipboardEntry> &lost);
    // Passes over entries that have changed since. Refreshes the watches.
    void apply(const std::vector<Outcome> &outcomes);
    void updateFileWatches();

    [[nodiscard]] ClipboardRemoval removal(const QSet<QUuid> &ids, bool isClearing) const;
    void removeEntries(const QSet<QUuid> &ids);
    void changed();

    const ClipboardStoreServices m_services;
    const ClipboardInspector m_inspector;
    const ClipboardScratchFolder m_scratch;
    std::vector<ClipboardEntry> m_entries;
    QSet<QUuid> m_selectedIDs;
    int m_importGeneration = 0;
    std::optional<QString> m_status;

    // By their folders.
    QHash<QString, std::shared_ptr<PromisedFolder>> m_promises;

    ClipboardFileWatches m_fileWatches;
    WorkItem m_reconciliation;
    SlicedWork m_pass;
    bool m_reconciling = false;
    // Asked for again while one was under way.
    bool m_reconcileAgain = false;
    bool m_searching = false;
    bool m_searchAgain = false;
    // While monitoring.
    std::unique_ptr<QObject> m_activation;
    std::unique_ptr<Workspace::Observation> m_workspace;
    Generation m_life;
};

} // namespace tembra
