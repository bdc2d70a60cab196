#pragma once

#include "platform/FileFacts.h"
#include "tray/ClipboardEntry.h"

#include <QList>
#include <QSet>
#include <QStringList>
#include <QUuid>

#include <functional>
#include <optional>
#include <vector>

class QMimeData;

namespace tembra {

// The files that the user put into the file tray. Entries refer to files where they are: taking one out
// leaves the file alone. The list lives as long as the program. Main thread; owned by ShelfSession.
class ClipboardStore {
public:
    // `files` must outlive this.
    explicit ClipboardStore(const FileFactsReader &files);

    // Whether files are taken at all.
    std::function<bool()> canReceive;
    // After every change of the entries or of their selection.
    std::function<void()> onChange;

    [[nodiscard]] const std::vector<ClipboardEntry> &entries() const { return m_entries; }
    [[nodiscard]] QList<QUuid> order() const;
    [[nodiscard]] const QSet<QUuid> &selectedIDs() const { return m_selectedIDs; }
    [[nodiscard]] int importGeneration() const { return m_importGeneration; }
    // The entries that stand for this file: by what the file system knows it by, or by its path.
    [[nodiscard]] std::vector<ClipboardEntry> references(const QString &path,
                                                         const ScreenshotFileIdentity &identity) const;

    // Adds the files that exist, unless the import was overtaken by a later one.
    void add(int generation, const QStringList &paths);
    void select(const QSet<QUuid> &ids);
    [[nodiscard]] static bool canRead(const QMimeData &pasteboard);
    [[nodiscard]] static QStringList files(const QMimeData &pasteboard);
    bool receive(const QMimeData &pasteboard);
    void removeSelected();
    void clear();
    void reconcileFiles() {}
    [[nodiscard]] const std::optional<QString> &status() const { return m_status; }
    void setStatus(std::optional<QString> status);

    // Takes entries out whose files went to the Trash.
    void removeReferences(const QSet<QUuid> &ids);
    // Puts them back where they were among `order`, and selects what was selected.
    void restoreReferences(const std::vector<ClipboardEntry> &entries, const QList<QUuid> &order,
                           const QSet<QUuid> &selection, int generation);
    // Points the entries at the file that the editor wrote in place of theirs.
    void rebindEditedReferences(const QSet<QUuid> &ids, const QString &path);

private:
    void changed();

    const FileFactsReader &m_files;
    std::vector<ClipboardEntry> m_entries;
    QSet<QUuid> m_selectedIDs;
    int m_importGeneration = 0;
    std::optional<QString> m_status;
};

} // namespace tembra
