#pragma once

#include "Timing.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tembra::bench {

// Milliseconds for what no look at a folder can do without: each entry's facts and its marker.
inline double bareLoop(const QString &folder) {
    return milliseconds([&folder] {
        DIR *entries = opendir(QFile::encodeName(folder).constData());
        const int descriptor = dirfd(entries);
        std::array<char, 64> value{};
        while (const dirent *entry = readdir(entries)) {
            struct statx facts {};
            statx(descriptor, entry->d_name, AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &facts);
            const QByteArray path = QFile::encodeName(folder) + '/' + entry->d_name;
            getxattr(path.constData(), "user.com.apple.metadata:kMDItemIsScreenCapture", value.data(),
                     value.size());
        }
        closedir(entries);
    });
}

} // namespace tembra::bench
