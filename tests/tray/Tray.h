#pragma once

#include "platform/linux/InotifyFolderEvents.h"
#include "platform/linux/LinuxFileReferences.h"
#include "platform/linux/LinuxMountedVolumes.h"
#include "support/EventLoop.h"
#include "support/FakeFilePromises.h"
#include "support/FakeWorkspace.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "tray/ClipboardStore.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace tembra {

// The mounted volumes, which can be said to be another machine's.
class AdjustableVolumes final : public Volumes {
public:
    explicit AdjustableVolumes(const LinuxFileFactsReader &reader) : m_mounted(reader) {}

    bool areLocal = true;

    [[nodiscard]] Result<Volume> volumeOf(const QString &path) const override {
        return m_mounted.volumeOf(path).map([this](Volume volume) {
            volume.isLocal = areLocal;
            return volume;
        });
    }
    [[nodiscard]] std::optional<QString> mountPointOf(const Volume &volume) const override {
        return m_mounted.mountPointOf(volume);
    }

private:
    const LinuxMountedVolumes m_mounted;
};

// A file tray over real files and their events; time and the queue are the test's.
class Tray {
public:
    // `temporary` holds the scratch folder; by default a folder of its own.
    explicit Tray(const QString &temporary = {})
        : m_temporary(temporary.isEmpty() ? path("temporary") : temporary) {
        QDir().mkpath(m_temporary);
        store.onChange = [this] { ++changes; };
    }

    [[nodiscard]] QString path(const char *name) const { return home.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString scratch() const { return m_temporary + QStringLiteral("/Pavrell-Clipboard"); }
    void add(const QStringList &paths) { store.add(store.importGeneration(), paths); }
    // What was put on the queue is done and told.
    void settle() {
        queue.runAll();
        scheduler.settle();
    }
    void reconcile() {
        store.reconcileFiles();
        settle();
    }
    // Each entry's path, and "-" before those that cannot be reached.
    [[nodiscard]] QStringList shown() const {
        QStringList paths;
        for (const ClipboardEntry &entry : store.entries())
            paths += (entry.available ? QString() : QStringLiteral("-")) + entry.lastKnownPath;
        return paths;
    }
    [[nodiscard]] QString status() const { return store.status().value_or(QString()); }

    QTemporaryDir home;
    ManualScheduler scheduler;
    ManualQueue queue;
    LinuxFileFactsReader files;
    LinuxFileReferences references{files};
    AdjustableVolumes volumes{files};
    InotifyFolderEvents events{files, scheduler};
    FakeWorkspace workspace;
    FakeFilePromises promises;
    int changes = 0;

private:
    const QString m_temporary;

public:
    ClipboardStore store{
        {.scheduler = scheduler,
         .uptime = scheduler.uptimeClock(),
         .files = files,
         .references = references,
         .volumes = volumes,
         .folderEvents = events,
         .workspace = workspace,
         .promises = promises,
         .queue = queue,
         .folders = {.trash = {path("Trash")}, .cache = path("cache"), .temporary = m_temporary}}};
};

} // namespace tembra
