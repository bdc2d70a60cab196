// A screenshot goes to the editor and comes back.

#include "base/MainThread.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace tembra {

void ShelfSession::beginEditorSave(const Shot &shot, const std::optional<QString> &originalFolder) {
    requireMainThread();
    const QString current = shot.currentPath(m_services.files, m_services.references);
    const QString path = QDir::cleanPath(current.isEmpty() ? shot.location : current);
    EditorSaveContext context{.shot = shot,
                              .path = path,
                              .folder = originalFolder.value_or(QFileInfo(path).path()),
                              .isPinned = isPinned(path, shot.identity)};
    if (const auto facts = m_services.files.facts(path))
        context.createdAt = facts->createdAt;
    m_editorSaveContext = std::move(context);
}

void ShelfSession::finishEditorWrite(const std::optional<QString> &path) {
    requireMainThread();
    const auto context = std::exchange(m_editorSaveContext, std::nullopt);
    if (context && path) {
        const EditorSaveContext::Written written = writtenFile(QDir::cleanPath(*path), *context);
        if (context->isReplacedBy(written))
            rebind(*context, written);
    }
    if (path)
        m_fileWatcher->requestScanAfterEditorWrite();
    else
        m_fileWatcher->requestScan();
}

EditorSaveContext::Written ShelfSession::writtenFile(const QString &path,
                                                     const EditorSaveContext &context) const {
    EditorSaveContext::Written written{.path = path};
    if (const auto facts = m_services.files.facts(path)) {
        written.identity = ScreenshotFileIdentity::of(path, *facts);
        written.createdAt = facts->createdAt;
    }
    const auto old = m_services.files.facts(context.path);
    written.oldFileStands = old && ScreenshotFileIdentity::of(context.path, *old) == context.shot.identity;
    return written;
}

void ShelfSession::rebind(const EditorSaveContext &context, const EditorSaveContext::Written &written) {
    QSet<QUuid> trayEntries;
    for (const ClipboardEntry &entry : clipboard.references(context.path, context.shot.identity))
        trayEntries.insert(entry.id);
    clipboard.rebindEditedReferences(trayEntries, written.path);
    if (selected.remove(context.shot.identity))
        selected.insert(written.identity);
    if (!context.isPinned)
        return;
    const auto bound = m_settings.rebindScreenshotPin(context.path, written.path);
    if (!bound && onError)
        onError(QCoreApplication::translate("ShelfSession", "Couldn’t update pinned screenshot"),
                bound.error().message);
}

} // namespace tembra
