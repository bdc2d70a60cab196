#pragma once

#include "screenshots/ScreenshotFileIdentity.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QUuid>

#include <optional>

namespace tembra {

// How the shelf was before screenshots left it, so that a restore can put them back in their places. A value.
struct ScreenshotRemovalContext {
    std::optional<QString> folder;
    // The screenshots in display order.
    QList<ScreenshotFileIdentity> order;
    QSet<ScreenshotFileIdentity> selection;
    QList<QUuid> trayOrder;
    QSet<QUuid> traySelection;
    int trayGeneration = 0;
};

} // namespace tembra
