#pragma once

#include "tray/ClipboardEntry.h"

#include <QList>
#include <QSet>
#include <QUuid>

#include <vector>

namespace tembra {

// What the user took out of the file tray, and how the tray was before, to put it back. A value.
struct ClipboardRemoval {
    std::vector<ClipboardEntry> entries;
    QList<QUuid> order;
    QSet<QUuid> selection;
    // The tray was cleared.
    bool isClearing = false;
};

} // namespace tembra
