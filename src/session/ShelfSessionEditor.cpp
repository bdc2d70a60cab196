// A screenshot goes to the editor and comes back.

#include "base/MainThread.h"
#include "session/ShelfSession.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tembra {

void ShelfSession::beginEditorSave(const Shot &shot, const std::optional<QString> &originalFolder) {
    requireMainThread();
    const QString current = shot.currentPath(m_services.files, m_services.references);
    const QString path = QDir::cleanPath(current.isEmpty() ? shot.location : current);
    EditorSaveContext context{.shot = shot,
                              .path = path,
                              .folder = originalFolder.value_or(QFileInfo(path).path()),
                              .pinnedPath = pinnedPath(path, shot.identity)};
    if (const auto facts = m_services.files.facts(path))
        context.createdAt = facts->createdAt;
    m_editorSaveContext = std::move(context);
}

// A file that was renamed a moment ago is still pinned under the name it had.
std::optional<QString> ShelfSession::pinnedPath(const QString &path,
                                                const ScreenshotFileIdentity &identity) const {
    const auto file = identity.resource();
    for (const PinnedScreenshot &pin : m_settings.pinnedScreenshots()) {
        if (pin.resolved && (pin.resolved->path == path || (file && pin.resolved->reference == file)))
            return pin.resolved->path;
    }
    return std::nullopt;
}

void ShelfSession::finishEditorWrite(const std::optional<QString> &path) {
    requireMainThread();
    const auto context = std::exchange(m_editorSaveContext, std::nullopt);
    if (context && path) {
        const auto written = writtenFile(QDir::cleanPath(*path), *context);
        if (written && context->isReplacedBy(*written)) {
            // A scan that is under way may still tell of the file that was.
            m_fileWatcher->pause();
            rebind(*context, *written);
            m_fileWatcher->resume();
        }
    }
    if (path)
        m_fileWatcher->requestScanAfterEditorWrite();
    else
        m_fileWatcher->requestScan();
}

std::optional<EditorSaveContext::Written> ShelfSession::writtenFile(const QString &path,
                                                                    const EditorSaveContext &context) const {
    const auto facts = m_services.files.facts(path);
    if (!facts)
        return std::nullopt;
    const auto old = m_services.files.facts(context.path);
    return EditorSaveContext::Written{
        .path = path,
        .identity = ScreenshotFileIdentity::of(path, *facts),
        .createdAt = facts->createdAt,
        .oldFileStands = old && ScreenshotFileIdentity::of(context.path, *old) == context.shot.identity};
}

void ShelfSession::rebind(const EditorSaveContext &context, const EditorSaveContext::Written &written) {
    QSet<QUuid> trayEntries;
    for (const ClipboardEntry &entry : clipboard.references(context.path, context.shot.identity))
        trayEntries.insert(entry.id);
    clipboard.rebindEditedReferences(trayEntries, written.path);
    if (selected.remove(context.shot.identity))
        selected.insert(written.identity);
    // Until the next scan the shelf would know a file that is no more.
    const auto shown = std::ranges::find(folderShelf().shots, context.shot.identity, &Shot::identity);
    if (shown != folderShelf().shots.end()) {
        shown->location = written.path;
        shown->identity = written.identity;
    }
    if (!context.pinnedPath)
        return;
    const auto bound = m_settings.rebindScreenshotPin(*context.pinnedPath, written.path);
    if (!bound && onError)
        onError(QCoreApplication::translate("ShelfSession", "Couldn’t update pinned screenshot"),
                bound.error().message);
}

} // namespace tembra
