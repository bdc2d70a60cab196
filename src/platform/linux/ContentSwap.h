#pragma once

#include "platform/FileCoordinator.h"
#include "platform/linux/DurableFolder.h"

namespace tembra {

// A compare-and-swap of files: two names of one folder change places in one step, and what was swapped out,
// to which no name leads any more that others know, decides whether that stands. Where names cannot be
// exchanged the file is looked at as late as possible and replaced.
class ContentSwap {
public:
    // `temporary` holds `bytes` and takes the place of `name`. All outlive this.
    ContentSwap(const DurableFolder &folder, const QByteArray &name, const QByteArray &temporary,
                QByteArrayView bytes, const FileCoordinator::ContentCheck &isExpected);

    // The temporary is gone afterwards.
    [[nodiscard]] Result<void> run() const;

private:
    [[nodiscard]] Result<void> settle() const;
    [[nodiscard]] Result<void> replaceUnexchanged() const;
    [[nodiscard]] Result<void> check(int file) const;
    [[nodiscard]] Result<void> swapBack(const Error &reason) const;

    const DurableFolder &m_folder;
    const QByteArray &m_name;
    const QByteArray &m_temporary;
    const QByteArrayView m_bytes;
    const FileCoordinator::ContentCheck &m_isExpected;
};

} // namespace tembra
