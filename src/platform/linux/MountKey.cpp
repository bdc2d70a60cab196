#include "platform/linux/MountKey.h"

#include "platform/linux/PosixError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tembra {

Result<MountKey> mountKeyOf(int descriptor) {
    struct statx facts {};
    if (::statx(descriptor, "", AT_EMPTY_PATH, STATX_TYPE | STATX_MNT_ID, &facts) != 0)
        return failure(posixError());
    const std::uint64_t device = makedev(facts.stx_dev_major, facts.stx_dev_minor);
    return MountKey{device, facts.stx_mask & STATX_MNT_ID ? facts.stx_mnt_id : device};
}

} // namespace tembra
