#pragma once

#include "platform/FileCoordinator.h"

namespace tembra {

// FileCoordinator by fsync, exchanged names (RENAME_EXCHANGE) and leases.
class LinuxFileCoordinator final : public FileCoordinator {
public:
    [[nodiscard]] Result<QByteArray> read(const QString &path) const override;
    [[nodiscard]] Result<void> makePrivateFolder(const QString &path) const override;
    [[nodiscard]] Result<void> writeAtomically(const QString &path, QByteArrayView bytes) const override;
    [[nodiscard]] Result<void> remove(const QString &path) const override;
    [[nodiscard]] Result<void> writeTemporary(const QString &path, QByteArrayView bytes, const QString &like,
                                              const std::optional<Instant> &createdAt) const override;
    [[nodiscard]] Result<void> replace(const QString &path, const QString &temporary, QByteArrayView bytes,
                                       const ContentCheck &isExpected) const override;
    [[nodiscard]] Result<void> clearTemporary(const QString &path, const QString &temporary,
                                              const ContentCheck &isKnown) const override;
    [[nodiscard]] Result<void> moveIfUnchanged(const QString &from, const QString &to,
                                               const ContentCheck &isExpected) const override;
};

} // namespace tembra
