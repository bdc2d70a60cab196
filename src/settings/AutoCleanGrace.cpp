#include "settings/AutoCleanGrace.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace tembra {

namespace {

const QString bookmarkKey = QStringLiteral("bookmark");
const QString pathKey = QStringLiteral("path");
const QString restoredAtKey = QStringLiteral("restoredAt");

QString isoDate(Instant instant) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(instant.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(milliseconds.count(), Qt::UTC).toString(Qt::ISODateWithMs);
}

// Nothing when the text is no date, or one so far away that an Instant cannot hold it and the end of its
// period.
std::optional<Instant> instant(const QString &isoDate) {
    using std::chrono::milliseconds;
    constexpr auto first = std::chrono::ceil<milliseconds>(Instant::min());
    constexpr auto last = std::chrono::floor<milliseconds>(Instant::max() - AutoCleanGrace::period);
    const QDateTime date = QDateTime::fromString(isoDate, Qt::ISODateWithMs);
    const std::chrono::sys_time<milliseconds> time{milliseconds(date.toMSecsSinceEpoch())};
    return date.isValid() && time >= first && time <= last ? std::optional<Instant>(time) : std::nullopt;
}

std::optional<AutoCleanGrace> decode(const QJsonObject &object) {
    const auto restoredAt = instant(object.value(restoredAtKey).toString());
    const QJsonValue path = object.value(pathKey);
    const auto bookmark = QByteArray::fromBase64Encoding(object.value(bookmarkKey).toString().toLatin1(),
                                                         QByteArray::AbortOnBase64DecodingErrors);
    if (!restoredAt || !path.isString() || !object.value(bookmarkKey).isString() || !bookmark)
        return std::nullopt;
    return AutoCleanGrace{*bookmark, path.toString(), *restoredAt};
}

} // namespace

QByteArray AutoCleanGrace::toJson(const std::vector<AutoCleanGrace> &list) {
    QJsonArray array;
    for (const AutoCleanGrace &grace : list)
        array.append(QJsonObject{{bookmarkKey, QString::fromLatin1(grace.bookmark.toBase64())},
                                 {pathKey, grace.path},
                                 {restoredAtKey, isoDate(grace.restoredAt)}});
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::vector<AutoCleanGrace> AutoCleanGrace::fromJson(const QByteArray &json) {
    std::vector<AutoCleanGrace> list;
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    for (const QJsonValue element : array) {
        const auto grace = decode(element.toObject());
        if (!grace)
            return {};
        list.push_back(*grace);
    }
    return list;
}

} // namespace tembra
