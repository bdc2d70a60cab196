#pragma once

#include "support/FakeFilePromises.h"
#include "support/FakeFolderEvents.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"
#include "tray/ClipboardStoreServices.h"

namespace tembra {

// What a file tray needs where nothing moves and nothing is mounted.
class TrayServices {
public:
    TrayServices(ManualScheduler &scheduler, const FileFactsReader &files, Workspace &workspace)
        : m_scheduler(scheduler), m_files(files), m_workspace(workspace) {}

    [[nodiscard]] ClipboardStoreServices services() {
        return {.scheduler = m_scheduler,
                .uptime = m_scheduler.uptimeClock(),
                .files = m_files,
                .references = m_references,
                .volumes = m_volumes,
                .folderEvents = m_events,
                .workspace = m_workspace,
                .promises = m_promises,
                .queue = m_queue};
    }

private:
    class NothingMoves final : public FileReferences {
    public:
        [[nodiscard]] std::optional<QString> path(const FileResource &, const QString &path) const override {
            return path;
        }
        [[nodiscard]] std::optional<QString> pathBeneath(const QString &,
                                                         const FileResource &) const override {
            return std::nullopt;
        }
        [[nodiscard]] std::shared_ptr<const HeldFile> hold(const QString &) const override { return nullptr; }
    };
    class OneVolume final : public Volumes {
    public:
        [[nodiscard]] Result<Volume> volumeOf(const QString &) const override {
            return Volume{.mountPoint = QStringLiteral("/"), .root = QStringLiteral("/")};
        }
        [[nodiscard]] std::optional<QString> mountPointOf(const Volume &volume) const override {
            return volume.mountPoint;
        }
    };

    ManualScheduler &m_scheduler;
    const FileFactsReader &m_files;
    Workspace &m_workspace;
    const NothingMoves m_references;
    const OneVolume m_volumes;
    FakeFolderEvents m_events;
    FakeFilePromises m_promises;
    ManualQueue m_queue;
};

} // namespace tembra
