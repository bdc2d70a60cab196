#include "editor/documents/EditorWritten.h"

#include "editor/documents/EditorFileCheck.h"

namespace tembra {

Shot EditorWritten::shot(Shot shot) const {
    shot.location = path;
    if (facts) {
        shot.identity = ScreenshotFileIdentity::of(path, *facts);
        shot.stamp = Shot::stampOf(EditorFileCheck::versionOf(*facts));
    }
    return shot;
}

} // namespace tembra
