#pragma once

#include "platform/FolderFiles.h"

namespace tembra {

// Other folder files, counting how many files are opened.
class CountingFolderFiles final : public FolderFiles {
public:
    explicit CountingFolderFiles(const FolderFiles &files) : m_files(files) {}

    [[nodiscard]] Result<std::unique_ptr<OpenFile>> open(const QString &path) const override {
        ++m_opened;
        return m_files.open(path);
    }
    [[nodiscard]] Result<void> list(const QString &folder, Subfolders subfolders,
                                    const Visit &visit) const override {
        return m_files.list(folder, subfolders,
                            [&](const Listed &file) { return visit(CountedFile(file, m_opened)); });
    }

    [[nodiscard]] int opened() const { return m_opened; }

private:
    class CountedFile final : public Listed {
    public:
        CountedFile(const Listed &file, int &opened) : m_file(file), m_opened(opened) {}
        [[nodiscard]] std::string_view relativePath() const override { return m_file.relativePath(); }
        [[nodiscard]] const FileVersion &version() const override { return m_file.version(); }
        [[nodiscard]] Result<std::unique_ptr<OpenFile>> open() const override {
            ++m_opened;
            return m_file.open();
        }

    private:
        const Listed &m_file;
        int &m_opened;
    };

    const FolderFiles &m_files;
    mutable int m_opened = 0;
};

} // namespace tembra
