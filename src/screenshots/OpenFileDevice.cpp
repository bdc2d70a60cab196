#include "screenshots/OpenFileDevice.h"

namespace tembra {

OpenFileDevice::OpenFileDevice(const OpenFile &file, std::uint64_t size)
    : m_file(file), m_size(static_cast<qint64>(size)) {
    open(QIODevice::ReadOnly);
}

qint64 OpenFileDevice::readData(char *data, qint64 maxSize) {
    return static_cast<qint64>(
        m_file.read(static_cast<std::uint64_t>(pos()), {data, static_cast<std::size_t>(maxSize)}));
}

qint64 OpenFileDevice::writeData(const char *, qint64) {
    return -1;
}

} // namespace tembra
