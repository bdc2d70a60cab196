#include "base/FilePath.h"

#include <QFile>

namespace tembra {

namespace {

constexpr char16_t firstEscape = 0xdc80;
constexpr char16_t lastEscape = 0xdcff;
constexpr qsizetype longestCharacter = 4;

// Of the character that the bytes begin with; 0 when they begin with none.
qsizetype characterLength(QByteArrayView bytes) {
    for (qsizetype length = 1; length <= std::min(longestCharacter, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

} // namespace

QString pathFromBytes(QByteArrayView bytes) {
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    QString path;
    while (!bytes.isEmpty()) {
        const qsizetype length = characterLength(bytes);
        if (length > 0)
            path += QString::fromUtf8(bytes.first(length));
        else
            path += QChar(char16_t(0xdc00 + static_cast<std::uint8_t>(bytes.front())));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return path;
}

QByteArray pathBytes(const QString &path) {
    if (path.isValidUtf16())
        return QFile::encodeName(path);
    QByteArray bytes;
    qsizetype written = 0;
    for (qsizetype at = 0; at < path.size(); ++at) {
        const char16_t unit = path.at(at).unicode();
        const bool isEscape =
            unit >= firstEscape && unit <= lastEscape && (at == 0 || !path.at(at - 1).isHighSurrogate());
        if (!isEscape)
            continue;
        bytes += QFile::encodeName(path.mid(written, at - written));
        bytes += static_cast<char>(unit & 0xff);
        written = at + 1;
    }
    return bytes + QFile::encodeName(path.mid(written));
}

} // namespace tembra
