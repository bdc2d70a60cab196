#pragma once

#include "platform/OpenFile.h"

#include <QIODevice>

namespace tembra {

// An open file as a device that Qt's image readers take. Reads only; the file must outlive it.
class OpenFileDevice final : public QIODevice {
public:
    OpenFileDevice(const OpenFile &file, std::uint64_t size);

    [[nodiscard]] bool isSequential() const override { return false; }
    [[nodiscard]] qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 maxSize) override;

private:
    const OpenFile &m_file;
    const qint64 m_size;
};

} // namespace tembra
