#pragma once

#include "base/Error.h"

#include <QString>

#include <cerrno>
#include <cstring>

namespace tembra {

// The error of a system call that just failed.
inline Error posixError(int code = errno) {
    return Error{posixErrorDomain, code, QString::fromLocal8Bit(std::strerror(code)), QString()};
}

} // namespace tembra
