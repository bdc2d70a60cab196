#pragma once

#include "base/Clocks.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/stat.h>

namespace tembra {

// Writes a file whole; gives its path.
inline QString writeFile(const QString &path, const QByteArray &content = QByteArrayLiteral("x")) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

// Sets when the file was read and modified, to the nanosecond.
inline void setModified(const QString &path, Instant instant) {
    const auto nanoseconds = instant.time_since_epoch().count();
    const timespec time{nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000};
    const timespec times[2]{time, time};
    if (::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0) != 0)
        qFatal("cannot set the times of %s", qPrintable(path));
}

} // namespace tembra
