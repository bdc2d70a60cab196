#pragma once

#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace tembra {

// While it is held nobody else opens the file for writing: who tries waits until it is given back (see
// F_SETLEASE in fcntl(2)). `file` is open for reading only and outlives this.
class ReadLease {
public:
    explicit ReadLease(int file) : m_file(file) {
        // Being told that somebody waits would end a program that knows nothing of it; this signal is ignored
        // unless somebody asks for it.
        ::fcntl(file, F_SETSIG, SIGURG);
        m_code = ::fcntl(file, F_SETLEASE, F_RDLCK) == 0 ? 0 : errno;
    }
    ~ReadLease() {
        if (m_code == 0)
            ::fcntl(m_file, F_SETLEASE, F_UNLCK);
    }
    ReadLease(const ReadLease &) = delete;
    ReadLease &operator=(const ReadLease &) = delete;

    // Whether somebody has the file open for writing or waits to. Where the file system knows no leases, or
    // the file is another user's, nobody is known of.
    [[nodiscard]] bool hasWriter() const {
        return m_code == EAGAIN || (m_code == 0 && ::fcntl(m_file, F_GETLEASE) != F_RDLCK);
    }

private:
    const int m_file;
    int m_code = 0;
};

} // namespace tembra
