#pragma once

#include "editor/model/ScreenshotEditStore.h"
#include "platform/Platform.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

namespace tembra {

// An edit store on the real platform, in a folder that also holds the screenshots.
class EditStore {
public:
    explicit EditStore(QString folder) : m_folder(std::move(folder)) {}

    [[nodiscard]] QString path(const QString &name) const { return m_folder + u'/' + name; }
    [[nodiscard]] ScreenshotEditServices services() {
        return {.files = *m_platform.fileFacts,
                .bookmarks = *m_platform.bookmarks,
                .references = *m_platform.fileReferences,
                .coordinator = *m_platform.fileCoordinator,
                .thumbnails = *m_platform.thumbnailCache,
                .queue = queue,
                .scheduler = scheduler};
    }

private:
    const QString m_folder;

public:
    ManualScheduler scheduler;
    ManualQueue queue;

private:
    Platform m_platform = makeHeadlessPlatform(scheduler);

public:
    ScreenshotEditStore store{path(QStringLiteral("edits")), services()};
};

} // namespace tembra
