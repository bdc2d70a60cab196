#include "platform/linux/MountTable.h"

#include <QFile>
#include <QList>

namespace tembra {

namespace {

// Blanks, tabs, line ends and backslashes are written as three octal digits, see proc(5).
QByteArray unescaped(const QByteArray &field) {
    QByteArray result;
    result.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isNumber = false;
        const int code = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&isNumber, 8) : 0;
        result.append(isNumber ? static_cast<char>(code) : field.at(i));
        i += isNumber ? 3 : 0;
    }
    return result;
}

} // namespace

std::optional<MountEntry> parseMountLine(const QByteArray &line) {
    // id parent major:minor root mount-point options [optional fields] - type source super-options
    constexpr int rootField = 3;
    constexpr int mountPointField = 4;
    const QList<QByteArray> fields = line.trimmed().split(' ');
    const qsizetype separator = fields.indexOf(QByteArrayLiteral("-"));
    if (separator <= mountPointField || separator + 2 >= fields.size())
        return std::nullopt;
    bool isNumber = false;
    const std::uint64_t id = fields.at(0).toULongLong(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return MountEntry{.id = id,
                      .mountPoint = unescaped(fields.at(mountPointField)),
                      .type = unescaped(fields.at(separator + 1)),
                      .source = unescaped(fields.at(separator + 2)),
                      .root = unescaped(fields.at(rootField))};
}

std::vector<MountEntry> readMountTable() {
    std::vector<MountEntry> entries;
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (auto entry = parseMountLine(line))
            entries.push_back(*std::move(entry));
    }
    return entries;
}

} // namespace tembra
