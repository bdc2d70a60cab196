#include "shelf/ScreenshotFolderState.h"

namespace tembra {

ScreenshotFolderState screenshotFolderState(const ScreenshotFolderFacts &facts) {
    using Kind = ScreenshotDestination::Kind;
    const Kind kind = facts.destination ? facts.destination->kind : Kind::folder;
    if (kind == Kind::clipboard)
        return ScreenshotFolderState::clipboard;
    if (kind == Kind::other)
        return ScreenshotFolderState::other;
    if (facts.unavailable)
        return ScreenshotFolderState::missing;
    if (!facts.folder)
        return ScreenshotFolderState::none;
    if (facts.destination && facts.destination->folder != *facts.folder)
        return ScreenshotFolderState::elsewhere;
    return facts.hasCompletedInitialScan ? ScreenshotFolderState::ready : ScreenshotFolderState::loading;
}

QString statusName(ScreenshotFolderState state) {
    switch (state) {
    case ScreenshotFolderState::none:
        return QStringLiteral("none");
    case ScreenshotFolderState::loading:
        return QStringLiteral("loading");
    case ScreenshotFolderState::ready:
        return QStringLiteral("ready");
    case ScreenshotFolderState::elsewhere:
        return QStringLiteral("elsewhere");
    case ScreenshotFolderState::clipboard:
        return QStringLiteral("clipboard");
    case ScreenshotFolderState::other:
        return QStringLiteral("other");
    case ScreenshotFolderState::missing:
        return QStringLiteral("missing");
    }
    return {};
}

} // namespace tembra
