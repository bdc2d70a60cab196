#include "session/EditorSaveContext.h"

#include <QFileInfo>

namespace tembra {

bool EditorSaveContext::isReplacedBy(const Written &written) const {
    if (written.path == path)
        return true;
    if (written.oldFileStands)
        return false;
    if (written.identity == shot.identity)
        return true;
    // A file that was written anew has another identity, but the editor keeps the date it was made.
    return createdAt && written.createdAt == createdAt && QFileInfo(written.path).path() == folder;
}

} // namespace tembra
