#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace tembra {

// Writes a file whole; gives its path.
inline QString writeFile(const QString &path, const QByteArray &content = QByteArrayLiteral("x")) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

} // namespace tembra
