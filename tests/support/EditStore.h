#pragma once

#include "editor/model/ScreenshotEditStore.h"
#include "platform/Platform.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <QTemporaryDir>

namespace tembra {

// An edit store on the real platform, with a folder for screenshots, both of which go with it.
class EditStore {
public:
    QTemporaryDir folder;
    ManualScheduler scheduler;
    ManualQueue queue;
    Platform platform = makeHeadlessPlatform(scheduler);
    ScreenshotEditStore store{folder.filePath(QStringLiteral("edits")),
                              {.files = *platform.fileFacts,
                               .bookmarks = *platform.bookmarks,
                               .references = *platform.fileReferences,
                               .coordinator = *platform.fileCoordinator,
                               .thumbnails = *platform.thumbnailCache,
                               .queue = queue,
                               .scheduler = scheduler}};

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
};

} // namespace tembra
