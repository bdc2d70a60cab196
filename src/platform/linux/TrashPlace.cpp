#include "platform/linux/TrashPlace.h"

#include "platform/linux/HeldEntry.h"
#include "platform/linux/PosixError.h"

#include <QFile>
#include <QList>

#include <fcntl.h>

namespace tembra {

Result<TrashPlace> TrashPlace::of(const QString &path, const Trash::Guard &guard) {
    const QByteArray encoded = QFile::encodeName(path);
    const qsizetype slash = encoded.lastIndexOf('/');
    TrashPlace place{.isGuarded = !guard.root.isEmpty(), .name = encoded.mid(slash + 1)};
    const bool isName = !place.name.isEmpty() && place.name != "." && place.name != "..";
    if (!isName || !encoded.startsWith('/') || encoded.contains('\0'))
        return failure(posixError(EINVAL));
    if (!place.isGuarded) {
        place.root = encoded.left(slash + 1);
        return place;
    }
    place.root = QFile::encodeName(guard.root);
    const QByteArray prefix = place.root.endsWith('/') ? place.root : place.root + '/';
    place.way = encoded.left(slash).mid(prefix.size());
    if (!encoded.startsWith(prefix) || place.way.split('/').contains(".."))
        return failure(posixError(EXDEV));
    return place;
}

Result<Descriptor> TrashPlace::openFolder(MissingFolders missing) const {
    Descriptor folder(::open(root.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        return failure(posixError());
    return isGuarded ? openBeneath(folder.number(), way, missing) : Result<Descriptor>(std::move(folder));
}

bool TrashPlace::leadsTo(int folder) const {
    const auto found = openFolder(MissingFolders::fail);
    return found && isSameFile(found->number(), folder);
}

} // namespace tembra
