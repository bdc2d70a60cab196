#include "platform/linux/TrashInfo.h"

#include <QDateTime>

#include <algorithm>
#include <cstring>

namespace tembra {

namespace {

// At most that many bytes, and no character cut in two.
QByteArray shortened(const QByteArray &text, qsizetype length) {
    if (text.size() <= length)
        return text;
    qsizetype end = std::max<qsizetype>(length, 0);
    while (end > 0 && (static_cast<unsigned char>(text.at(end)) & 0xc0) == 0x80)
        --end;
    return text.left(end);
}

} // namespace

QByteArray trashInfo(const QByteArray &originalPath, Instant deletedAt) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(deletedAt).time_since_epoch();
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(milliseconds.count());
    return "[Trash Info]\nPath=" + originalPath.toPercentEncoding("/!*'()") +
           "\nDeletionDate=" + local.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")).toLatin1() + '\n';
}

QByteArray trashName(const QByteArray &name, int attempt, qsizetype limit) {
    // What follows a dot much farther from the end is no file type but a part of the name.
    constexpr qsizetype longestType = 16;
    const qsizetype dot = name.lastIndexOf('.');
    const bool hasType = dot > 0 && name.size() - dot <= longestType;
    const QByteArray base = hasType ? name.left(dot) : name;
    const QByteArray ending = (attempt > 1 ? '.' + QByteArray::number(attempt) : QByteArray()) +
                              (hasType ? name.mid(dot) : QByteArray());
    const auto suffixLength = static_cast<qsizetype>(std::strlen(trashInfoSuffix));
    return shortened(base, limit - suffixLength - ending.size()) + ending;
}

} // namespace tembra
