#include "platform/linux/FolderWalk.h"

#include "platform/linux/LinuxOpenFile.h"
#include "platform/linux/PosixError.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace tembra {

namespace {

// Deeper folders are passed over: each level holds a descriptor.
constexpr int deepest = 32;

FileVersion fileVersion(const struct statx &facts) {
    return {facts.stx_ino, facts.stx_size, modificationTime(facts), changeTime(facts)};
}

bool readFacts(int folder, const char *name, struct statx &facts) {
    constexpr unsigned wanted =
        STATX_TYPE | STATX_INO | STATX_SIZE | STATX_MTIME | STATX_CTIME | STATX_MNT_ID;
    return ::statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, wanted, &facts) == 0;
}

class ListedFile final : public FolderFiles::Listed {
public:
    ListedFile(int folder, const char *name, std::string_view relativePath,
               const LinuxFileFactsReader &reader)
        : m_folder(folder), m_name(name), m_relativePath(relativePath), m_reader(reader) {}

    [[nodiscard]] std::string_view relativePath() const override { return m_relativePath; }
    [[nodiscard]] const FileVersion &version() const override {
        // Who opens each file in any case does not ask.
        if (!m_version) {
            struct statx facts {};
            m_version = readFacts(m_folder, m_name, facts) ? fileVersion(facts) : FileVersion();
        }
        return *m_version;
    }
    [[nodiscard]] Result<std::unique_ptr<OpenFile>> open() const override {
        return LinuxOpenFile::open(m_folder, m_name, m_reader);
    }

private:
    int m_folder;
    const char *m_name;
    std::string_view m_relativePath;
    mutable std::optional<FileVersion> m_version;
    const LinuxFileFactsReader &m_reader;
};

std::uint64_t mountOf(int folder) {
    struct statx facts {};
    return ::statx(folder, "", AT_EMPTY_PATH, STATX_MNT_ID, &facts) == 0 ? facts.stx_mnt_id : 0;
}

} // namespace

FolderWalk::FolderWalk(const LinuxFileFactsReader &reader, const FolderFiles::Visit &visit)
    : m_reader(reader), m_visit(visit) {}

Result<void> FolderWalk::run(const QString &folder, FolderFiles::Subfolders subfolders) {
    m_subfolders = subfolders;
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int code = descriptor < 0 ? errno : walk(descriptor, {});
    if (code != 0)
        return failure(posixError(code));
    return {};
}

int FolderWalk::walk(int folder, const std::string &prefix) {
    DIR *entries = ::fdopendir(folder);
    if (!entries) {
        const int code = errno;
        ::close(folder);
        return code;
    }
    if (m_depth == 0)
        m_mount = mountOf(folder);
    ++m_depth;
    errno = 0;
    const dirent *entry = nullptr;
    while (m_goesOn && (entry = ::readdir(entries))) {
        const bool mayCount =
            entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN ||
            (entry->d_type == DT_DIR && m_subfolders != FolderFiles::Subfolders::passedOver);
        if (mayCount && entry->d_name[0] != '.')
            meet(folder, *entry, prefix);
        errno = 0;
    }
    const int code = errno;
    --m_depth;
    ::closedir(entries);
    return code;
}

void FolderWalk::meet(int folder, const dirent &entry, const std::string &prefix) {
    const char *const name = entry.d_name;
    struct statx facts {};
    const bool isKnownFile = entry.d_type == DT_REG;
    if (!isKnownFile && !readFacts(folder, name, facts))
        return;
    if (isKnownFile || S_ISREG(facts.stx_mode)) {
        const std::string relativePath = prefix + name;
        m_goesOn = m_visit(ListedFile(folder, name, relativePath, m_reader));
    } else if (S_ISDIR(facts.stx_mode) && isEntered(facts.stx_mnt_id) && m_depth < deepest) {
        const int below = ::openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (below >= 0)
            walk(below, prefix + name + '/');
    }
}

bool FolderWalk::isEntered(std::uint64_t mount) const {
    return m_subfolders == FolderFiles::Subfolders::entered ||
           (m_subfolders == FolderFiles::Subfolders::onSameMount && mount == m_mount);
}

} // namespace tembra
