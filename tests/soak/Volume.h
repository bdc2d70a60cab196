#pragma once

#include "Tally.h"

#include <QString>

namespace tembra {

class TembraProcess;

// The disk that the screenshots folder is on: it is mounted and unmounted, and the folder on it renamed. Only
// where this process may have mounts of its own.
class Volume {
public:
    Volume(const TembraProcess &tembra, Tally &tally);
    ~Volume();
    Volume(const Volume &) = delete;
    Volume &operator=(const Volume &) = delete;

    // Empty when there is a disk of our own.
    [[nodiscard]] QString problem() const { return m_problem; }
    // Where its files are, also while it is not mounted.
    [[nodiscard]] QString files() const { return m_files; }
    [[nodiscard]] bool isFolderThere() const { return m_isMounted && !m_isRenamed; }

    void unmount();
    void renameFolder();
    // As before; from both.
    void bringBack();

private:
    void mount();
    void tellWhoHoldsIt();

    const TembraProcess &m_tembra;
    Tally &m_tally;
    const QString m_pictures;
    const QString m_folder;
    QString m_files;
    QString m_problem;
    bool m_isMounted = true;
    bool m_isRenamed = false;
};

} // namespace tembra
