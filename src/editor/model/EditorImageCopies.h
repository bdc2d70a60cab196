#pragma once

#include "base/Generation.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/FileCoordinator.h"
#include "platform/Pasteboard.h"
#include "platform/StandardFolders.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <deque>
#include <functional>

namespace tembra {

// The prepared copies of rendered images: made when one is copied, and discarded as soon as something else is
// on the clipboard; and made when one is dragged, and kept for a while, since a program may read what was
// dropped on it much later. Main thread; made by the composition root.
class EditorImageCopies {
public:
    struct Services {
        Pasteboard &pasteboard;
        const FileCoordinator &files;
        // The queue "Tembra.Editor.IO".
        SerialQueue &queue;
        Scheduler &scheduler;
    };

    // Where the user's copies lie.
    [[nodiscard]] static QString folder(const StandardFolders &folders) {
        return folders.cache + QStringLiteral("/ImageCopies");
    }

    // Only this keeps anything in `root`. Answers the pasteboard's `onChanged`. The services must outlive
    // this.
    EditorImageCopies(QString root, Services services);
    ~EditorImageCopies();
    EditorImageCopies(const EditorImageCopies &) = delete;
    EditorImageCopies &operator=(const EditorImageCopies &) = delete;

    // Puts the PNG of the screenshot at `source` on the clipboard.
    void copy(const QByteArray &png, const QString &source, std::function<void(Result<void>)> completion);
    // Gives a file with the PNG of the screenshot at `source` to be dragged into other programs.
    void prepareDrag(const QByteArray &png, const QString &source,
                     std::function<void(Result<QString>)> completion);
    // What an earlier run of the program left.
    void discardAll();

private:
    [[nodiscard]] Result<void> write(const QByteArray &png, const QString &file);
    void keepDragged(const QString &file);
    void discard(const QString &file);
    void clipboardChanged();

    const QString m_root;
    const Services m_services;
    // On the clipboard now; empty when there is none.
    QString m_current;
    // Of the clipboard, when that was put there.
    std::int64_t m_changeCount = 0;
    // The last ones, until the end of the program.
    std::deque<QString> m_dragged;
    Generation m_generation;
};

} // namespace tembra
