#pragma once

#include <QString>
#include <QTemporaryDir>

namespace tembra {

// A small file system of the given type ("tmpfs", "ext4", "vfat") mounted where only this process sees it.
// Needs rights that not every machine gives: tests ask `problem` and skip with it.
class ScratchMount {
public:
    explicit ScratchMount(const QString &type);
    ~ScratchMount();
    ScratchMount(const ScratchMount &) = delete;
    ScratchMount &operator=(const ScratchMount &) = delete;

    // Empty when the file system is mounted.
    [[nodiscard]] QString problem() const { return m_problem; }
    [[nodiscard]] QString path() const;
    // Mounts and unmounts again; gives whether it worked.
    bool mount();
    bool unmount();

private:
    void prepare();
    bool run(const QString &program, const QStringList &arguments);

    const QString m_type;
    QTemporaryDir m_folder;
    QString m_problem;
    bool m_isMounted = false;
};

} // namespace tembra
