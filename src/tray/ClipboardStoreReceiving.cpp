// Files, promised files and images come into the tray.

#include "base/Background.h"
#include "base/MainThread.h"
#include "platform/PasteboardContent.h"
#include "tray/ClipboardStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tembra {

namespace {

QString translated(const char *text) {
    return QCoreApplication::translate("ClipboardStore", text);
}

QString notReceived() {
    return translated(QT_TRANSLATE_NOOP("ClipboardStore", "Could not receive this file"));
}

QString notAddedImage() {
    return translated(QT_TRANSLATE_NOOP("ClipboardStore", "Could not add this image"));
}

// What to say of files that could not be taken; nothing when there are none.
std::optional<QString> refusal(qsizetype missing, qsizetype special) {
    if (missing + special == 0)
        return std::nullopt;
    if (missing == 1 && special == 0)
        return notReceived();
    if (missing == 0)
        return translated(QT_TRANSLATE_NOOP("ClipboardStore",
                                            "Pipes, sockets and devices cannot be kept in the file tray"));
    return translated(QT_TRANSLATE_NOOP("ClipboardStore", "Some files could not be received"));
}

} // namespace

bool ClipboardStore::canRead(const QMimeData &pasteboard) {
    return hasImage(pasteboard) || FilePromises::areIn(pasteboard) || !filesOn(pasteboard).isEmpty();
}

QStringList ClipboardStore::files(const QMimeData &pasteboard) {
    return filesOn(pasteboard);
}

bool ClipboardStore::receive(const QMimeData &pasteboard) {
    requireMainThread();
    if (!canReceive())
        return false;
    const QStringList named = files(pasteboard);
    if (!named.isEmpty() && addFiles(named))
        return true;
    // A sandboxed program names files as it sees them, and hands them over beside.
    if (FilePromises::areIn(pasteboard))
        return receivePromises(pasteboard);
    if (hasImage(pasteboard)) {
        receiveImage(pasteboard);
        return true;
    }
    if (named.isEmpty())
        setStatus(notReceived());
    return false;
}

void ClipboardStore::add(int generation, const QStringList &paths) {
    requireMainThread();
    if (generation == m_importGeneration)
        addFiles(paths);
}

bool ClipboardStore::addFiles(const QStringList &paths) {
    const auto before = m_entries.size();
    qsizetype missing = 0;
    qsizetype special = 0;
    for (const QString &path : paths) {
        const QString clean = QDir::cleanPath(path);
        const auto facts = m_services.files.facts(clean);
        if (!facts)
            ++missing;
        else if (facts->kind == FileKind::other)
            ++special;
        else
            m_entries.push_back(
                m_inspector.entryFor(clean, *facts, m_entries.empty() ? nullptr : &m_entries.back()));
    }
    const bool hasAdded = m_entries.size() > before;
    if (hasAdded) {
        reconcileFiles();
        updateFileWatches();
    }
    auto status = refusal(missing, special);
    const bool isDifferent = hasAdded || status != m_status;
    m_status = std::move(status);
    if (isDifferent)
        changed();
    return hasAdded;
}

bool ClipboardStore::receivePromises(const QMimeData &pasteboard) {
    setStatus(translated(QT_TRANSLATE_NOOP("ClipboardStore", "Receiving files…")));
    const auto folder = m_scratch.makeStorageDirectory();
    if (!folder) {
        qWarning("%s", qUtf8Printable(folder.error().message));
        setStatus(notReceived());
        return false;
    }
    m_services.promises.receive(pasteboard, *folder,
                                [this, ticket = m_life.ticket(), generation = m_importGeneration,
                                 folder = *folder](const Result<FilePromises::Delivery> &delivery) {
                                    if (ticket.isCurrent())
                                        promisesDelivered(generation, folder, delivery);
                                });
    return true;
}

void ClipboardStore::promisesDelivered(int generation, const QString &folder,
                                       const Result<FilePromises::Delivery> &delivery) {
    if (!delivery) {
        qWarning("%s", qUtf8Printable(delivery.error().message));
        QDir(folder).removeRecursively();
        return setStatus(notReceived());
    }
    const bool isToCome = std::ranges::any_of(delivery->paths, [&](const QString &path) {
        return path.startsWith(folder + u'/') && !m_services.files.facts(path);
    });
    if (isToCome)
        return awaitPromises(generation, folder);
    // Goes only when it is empty: the files are elsewhere.
    QDir().rmdir(folder);
    if (delivery->name.isEmpty())
        return add(generation, delivery->paths);
    const auto write = [scratch = m_scratch, delivery = *delivery] {
        return scratch.write(delivery.name, delivery.content);
    };
    addWritten(write, notReceived());
}

void ClipboardStore::awaitPromises(int generation, const QString &folder) {
    const auto onFilled = [this, generation, folder](const QStringList &paths) {
        const auto finished = m_promises.take(folder);
        if (paths.isEmpty())
            setStatus(notReceived());
        else
            add(generation, paths);
    };
    m_promises.insert(folder, std::make_shared<PromisedFolder>(m_services.folderEvents, m_services.scheduler,
                                                               folder, onFilled));
}

void ClipboardStore::receiveImage(const QMimeData &pasteboard) {
    addWritten([scratch = m_scratch, image = imageOn(pasteboard)] { return scratch.write(image); },
               notAddedImage());
}

void ClipboardStore::addWritten(std::function<Result<QString>()> write, const QString &failureStatus) {
    performInBackground(m_services.queue, m_services.scheduler, m_life.ticket(), std::move(write),
                        [this, failureStatus, generation = m_importGeneration](const Result<QString> &path) {
                            if (path)
                                return add(generation, {*path});
                            qWarning("%s", qUtf8Printable(path.error().message));
                            setStatus(failureStatus);
                        });
}

} // namespace tembra
