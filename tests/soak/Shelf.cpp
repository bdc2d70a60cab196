#include "Shelf.h"

#include "e2e/TembraProcess.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <utility>
#include <vector>

namespace tembra {

namespace {

using Nanoseconds = long long;

// When a file came to be: as an editor has noted, else when it was made or, earlier than that, changed.
Nanoseconds createdAt(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    std::array<char, 32> noted{};
    if (::getxattr(name.constData(), "user.app.tembra.created", noted.data(), noted.size() - 1) > 0)
        return QByteArray(noted.data()).toLongLong();
    struct statx facts {};
    ::statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, STATX_BTIME | STATX_MTIME, &facts);
    const auto nanoseconds = [](const statx_timestamp &time) {
        return static_cast<Nanoseconds>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    };
    const bool hasBirth = (facts.stx_mask & STATX_BTIME) != 0;
    return hasBirth ? std::min(nanoseconds(facts.stx_btime), nanoseconds(facts.stx_mtime))
                    : nanoseconds(facts.stx_mtime);
}

QStringList sorted(const QStringList &paths) {
    std::vector<std::pair<Nanoseconds, QString>> dated;
    for (const QString &path : paths)
        dated.emplace_back(createdAt(path), path);
    std::ranges::sort(dated, std::greater());
    QStringList list;
    for (const auto &[date, path] : dated)
        list += path;
    return list;
}

QStringList shown(const QJsonObject &status) {
    QStringList paths;
    for (const QJsonValue path : status[u"screenshots"][u"paths"].toArray())
        paths += path.toString();
    return paths;
}

} // namespace

QStringList listedNewestFirst(const QString &folder, const QStringList &names) {
    QStringList paths;
    for (const QString &name : names)
        paths += folder + u'/' + name;
    return sorted(paths);
}

std::optional<QString> shelfDiffers(const TembraProcess &tembra, const QStringList &paths) {
    QJsonObject last;
    const bool isSame = tembra.waitFor([&](const QJsonObject &status) {
        last = status;
        const QStringList all = shown(status);
        const int pinned = status[u"screenshots"][u"pinned"].toInt();
        QStringList rest = paths;
        for (const QString &path : all.first(std::min<qsizetype>(pinned, all.size())))
            rest.removeOne(path);
        return all == sorted(all.first(std::min<qsizetype>(pinned, all.size()))) + rest;
    });
    if (isSame)
        return std::nullopt;
    QString text;
    const QStringList all = shown(last);
    for (const QString &path : paths) {
        if (!all.contains(path))
            text += QStringLiteral("\n  not on the shelf: ") + path;
    }
    for (const QString &path : all) {
        if (!paths.contains(path))
            text += QStringLiteral("\n  not in the folder: ") + path;
    }
    return text.isEmpty() ? QStringLiteral("\n  another order:\n  ") + all.join(QStringLiteral("\n  ")) +
                                QStringLiteral("\n  is to be\n  ") + paths.join(QStringLiteral("\n  "))
                          : text + QStringLiteral("\n  folder: ") +
                                QString::fromUtf8(QJsonDocument(last[u"folder"].toObject()).toJson());
}

} // namespace tembra
