#pragma once

#include "platform/FolderFiles.h"
#include "platform/linux/LinuxFileFacts.h"

namespace tembra {

// FolderFiles by Linux' own calls, which spare a walk over the path for each fact. The reader must outlive it
// and every file it opened.
class LinuxFolderFiles final : public FolderFiles {
public:
    explicit LinuxFolderFiles(const LinuxFileFactsReader &reader) : m_reader(reader) {}

    [[nodiscard]] Result<std::unique_ptr<OpenFile>> open(const QString &path) const override;
    [[nodiscard]] Result<void> list(const QString &folder, Subfolders subfolders,
                                    const Visit &visit) const override;

private:
    const LinuxFileFactsReader &m_reader;
};

} // namespace tembra
