#include "base/FileUri.h"

#include <QDir>
#include <QSysInfo>

#include <algorithm>

namespace tembra {

std::optional<QString> pathOfFileUri(const QByteArray &uri) {
    constexpr QByteArrayView scheme = "file:";
    if (uri.first(std::min(scheme.size(), uri.size())).toLower() != scheme.toByteArray())
        return std::nullopt;
    QByteArray path = uri.sliced(scheme.size());
    if (path.startsWith("//")) {
        const qsizetype slash = path.indexOf('/', 2);
        if (slash < 0)
            return std::nullopt;
        const QByteArray host = path.sliced(2, slash - 2);
        if (!host.isEmpty() && host != "localhost" && host != QSysInfo::machineHostName().toUtf8())
            return std::nullopt;
        path = path.sliced(slash);
    }
    path = QByteArray::fromPercentEncoding(path);
    if (!path.startsWith('/') || path.contains('\0'))
        return std::nullopt;
    return QDir::cleanPath(pathFromBytes(path));
}

} // namespace tembra
