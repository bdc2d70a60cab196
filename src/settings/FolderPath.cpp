#include "settings/FolderPath.h"

#include <QDir>
#include <QFileInfo>

namespace tembra {

QString withoutLinks(const QString &path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(path) : canonical;
}

bool isSameFolder(const QString &a, const QString &b) {
    return a == b || withoutLinks(a) == withoutLinks(b);
}

QString withHomeShort(const QString &path, const QString &home) {
    return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

} // namespace tembra
