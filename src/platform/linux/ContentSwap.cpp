#include "platform/linux/ContentSwap.h"

#include "platform/linux/DiscardedFile.h"
#include "platform/linux/ExclusiveRename.h"
#include "platform/linux/FileCoordinatorError.h"
#include "platform/linux/ReadLease.h"

namespace tembra {

namespace {

tl::unexpected<Error> changed() {
    return failure(fileCoordinatorError(FileCoordinator::changed));
}

bool isUnsupported(const Error &error) {
    return error.code == EINVAL || error.code == ENOSYS || error.code == ENOTSUP;
}

} // namespace

ContentSwap::ContentSwap(const DurableFolder &folder, const QByteArray &name, const QByteArray &temporary,
                         QByteArrayView bytes, const FileCoordinator::ContentCheck &isExpected)
    : m_folder(folder), m_name(name), m_temporary(temporary), m_bytes(bytes), m_isExpected(isExpected) {}

Result<void> ContentSwap::run() const {
    const auto file = m_folder.openFile(m_name);
    auto outcome = file ? check(file->number()) : failure(file.error());
    if (outcome)
        outcome = m_folder.exchange(m_name, m_temporary);
    if (outcome)
        return settle();
    if (outcome.error().domain == posixErrorDomain && isUnsupported(outcome.error()))
        outcome = replaceUnexchanged();
    if (!outcome)
        (void)m_folder.remove(m_temporary);
    return outcome;
}

// Whether the file holds what is expected.
Result<void> ContentSwap::check(int file) const {
    const auto content = readWhole(file);
    if (!content)
        return failure(content.error());
    return m_isExpected(*content) ? Result<void>() : changed();
}

// The names have changed places: the temporary's leads to the file that was there.
Result<void> ContentSwap::settle() const {
    const auto file = m_folder.openFile(m_temporary);
    if (!file)
        return swapBack(file.error());
    // Held until the file has its name back or has none: a writer who comes meanwhile finds it as it is then.
    const ReadLease lease(file->number());
    auto outcome = check(file->number());
    if (outcome)
        outcome = m_folder.sync();
    if (outcome && lease.hasWriter())
        outcome = changed();
    if (outcome)
        outcome = m_folder.remove(m_temporary);
    if (!outcome)
        return swapBack(outcome.error());
    // The exchange lasts; if the removal does not, nothing is lost.
    (void)m_folder.sync();
    return {};
}

Result<void> ContentSwap::swapBack(const Error &reason) const {
    const auto isOurs = [this](QByteArrayView content) { return content == m_bytes; };
    // Unless it works because somebody removed what we had put there, the temporary's name leads again to
    // that, or to what others made of it while it stood in the place of the file.
    if (m_folder.exchange(m_name, m_temporary) ||
        renameExclusively(m_folder.number(), m_temporary, m_folder.number(), m_name) != 0)
        (void)discardOrKeep(m_folder, m_temporary, m_name, isOurs);
    (void)m_folder.sync();
    return failure(reason);
}

Result<void> ContentSwap::replaceUnexchanged() const {
    const auto file = m_folder.openFile(m_name);
    if (!file)
        return failure(file.error());
    const ReadLease lease(file->number());
    auto outcome = check(file->number());
    if (outcome && lease.hasWriter())
        outcome = changed();
    if (outcome)
        outcome = m_folder.rename(m_temporary, m_name);
    // The disk holds the one or the other whole, whenever the name gets there.
    if (outcome)
        (void)m_folder.sync();
    return outcome;
}

} // namespace tembra
