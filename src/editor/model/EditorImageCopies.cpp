#include "editor/model/EditorImageCopies.h"

#include "base/Background.h"
#include "base/MainThread.h"
#include "editor/model/EditorImageClipboard.h"

#include <QDir>
#include <QMimeData>
#include <QUrl>

#include <utility>

namespace tembra {

namespace {

constexpr std::size_t keptDrags = 8;

} // namespace

EditorImageCopies::EditorImageCopies(QString root, Services services)
    : m_root(std::move(root)), m_services(services) {
    m_services.pasteboard.onChanged = [this] { clipboardChanged(); };
}

EditorImageCopies::~EditorImageCopies() {
    m_services.pasteboard.onChanged = {};
    // The queue may end before it comes to this.
    for (const QString &file : m_dragged)
        EditorImageClipboard::discard(file);
}

void EditorImageCopies::copy(const QByteArray &png, const QString &source,
                             std::function<void(Result<void>)> completion) {
    requireMainThread();
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [png, source, root = m_root, &files = m_services.files] {
            return EditorImageClipboard::prepare(png, source, root, files);
        },
        [this, png, completion = std::move(completion)](const Result<QString> &file) {
            completion(file ? write(png, *file) : failure(file.error()));
        });
}

void EditorImageCopies::prepareDrag(const QByteArray &png, const QString &source,
                                    std::function<void(Result<QString>)> completion) {
    requireMainThread();
    performInBackground(
        m_services.queue, m_services.scheduler, m_generation.ticket(),
        [png, source, root = m_root, &files = m_services.files] {
            return EditorImageClipboard::prepare(png, source, root, files);
        },
        [this, completion = std::move(completion)](const Result<QString> &file) {
            if (file)
                keepDragged(*file);
            completion(file);
        });
}

void EditorImageCopies::keepDragged(const QString &file) {
    m_dragged.push_back(file);
    if (m_dragged.size() <= keptDrags)
        return;
    discard(m_dragged.front());
    m_dragged.pop_front();
}

Result<void> EditorImageCopies::write(const QByteArray &png, const QString &file) {
    auto written = EditorImageClipboard::write(png, file, m_services.pasteboard);
    if (!written) {
        discard(file);
        return written;
    }
    // Tells of the change that this was, which discards the copy before.
    m_changeCount = m_services.pasteboard.changeCount();
    m_current = file;
    return written;
}

void EditorImageCopies::clipboardChanged() {
    if (m_current.isEmpty() || m_services.pasteboard.changeCount() == m_changeCount)
        return;
    // Some desktops tell of our own change again.
    const QMimeData *content = m_services.pasteboard.content();
    if (content && content->hasUrls() && content->urls().contains(QUrl::fromLocalFile(m_current)))
        return;
    discard(std::exchange(m_current, {}));
}

void EditorImageCopies::discard(const QString &file) {
    m_services.queue.post([file] { EditorImageClipboard::discard(file); });
}

void EditorImageCopies::discardAll() {
    requireMainThread();
    m_services.queue.post([root = m_root] { QDir(root).removeRecursively(); });
}

} // namespace tembra
