#pragma once

#include "platform/FileFacts.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/LinuxFileFacts.h"

#include <QByteArray>

namespace tembra {

// A file and the name it had in an open folder. The file is held, so that as long as this lives nothing else
// can get its number and be taken for it. A link is held itself.
class HeldEntry {
public:
    [[nodiscard]] static Result<HeldEntry> open(Descriptor folder, const QByteArray &name);

    [[nodiscard]] int folder() const { return m_folder.number(); }
    [[nodiscard]] const QByteArray &name() const { return m_name; }
    // The facts of a regular file; EINVAL for anything else.
    [[nodiscard]] Result<FileFacts> facts(const LinuxFileFactsReader &reader) const;
    // Whether the name there is this file's.
    [[nodiscard]] bool isAt(int folder, const QByteArray &name) const;

private:
    HeldEntry(Descriptor folder, QByteArray name, Descriptor file);

    Descriptor m_folder;
    QByteArray m_name;
    Descriptor m_file;
};

// Whether both are descriptors of the same file or folder.
[[nodiscard]] bool isSameFile(int one, int other);

} // namespace tembra
